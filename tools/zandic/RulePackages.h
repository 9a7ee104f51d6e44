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

    /// Tells of the names that nobody needs. \param tuning the package's tuning document, or null.
    void Finish(const DocumentPlaces* tuning);

private:
    /// A name in `UseNames` or `UseScopes`.
    struct Named {
        std::string_view item;  ///< as it stands there, maybe with a content word
        ZELVBTXMLAttribute attribute;
        bool isScope;
    };

    void read_Names();
    void check_Name(const Named& named);
    void use_Tuning(const DocumentPlaces& tuning);
    bool is_Named(const std::string& package) const;
    bool means(std::string_view item, const std::string& package) const;

    RuleDocument& _Document;
    std::vector<Named> _NAMES;
    std::set<const std::string*> _MET;  ///< of parties, by address
    std::set<std::string, std::less<>> _USED;
};

}  // namespace tool

#endif
