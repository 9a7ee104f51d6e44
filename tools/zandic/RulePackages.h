/// The rules about the packages that a document names and uses.
#ifndef ZANDIC_TOOL_RULE_PACKAGES_H
#define ZANDIC_TOOL_RULE_PACKAGES_H

#include <set>
#include <string>
#include <string_view>

#include "RuleElement.h"

namespace tool {

/// Gathers what the elements refer to, then compares it with what is named.
class PackageRules {
public:
    explicit PackageRules(RuleDocument& document) : _Document(document) { read_Names(); }

    /// Notes the packages that an element refers to, and tells of one that is not named, once.
    void Refer(const RuleElement& element);

    /// Tells of the names that nobody needs.
    void Finish();

private:
    /// A name in `UseNames` or `UseScopes`.
    struct Named {
        std::string_view item;  ///< as it stands there, maybe with a content word
        ZELVBTXMLAttribute attribute;
        bool isScope;
    };

    void read_Names();
    bool is_Unused(const Named& named) const;
    bool is_Self(std::string_view name) const;
    void use_Tuning();
    std::string tuning_File() const;
    bool is_Named(const std::string& package) const;
    void use(const std::string& package);

    RuleDocument& _Document;
    std::vector<Named> _NAMES;
    std::set<std::string_view> _NAMED;         ///< the packages of these names
    std::set<const std::string*> _MET;         ///< packages of parties, by address
    std::set<std::string, std::less<>> _USED;  ///< used packages, as they and as their files are called
};

}  // namespace tool

#endif
