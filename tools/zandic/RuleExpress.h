/// The rules about what EXPRESS makes of a package.
#ifndef ZANDIC_TOOL_RULE_EXPRESS_H
#define ZANDIC_TOOL_RULE_EXPRESS_H

#include <cstdint>
#include <vector>

#include "RuleElement.h"

namespace tool {

/// Gathers the classes in their order, and looks at names as they come.
class ExpressRules {
public:
    explicit ExpressRules(RuleDocument& document);

    void AddClass(const RuleElement& element);

    /// Looks at the name of an attribute or a unique key of the class that was added last.
    void AddMember(const RuleElement& element);

    void Finish();

private:
    struct Class {
        ZELVBTXMLNode node;
        bool isInstance;
        bool isPersistent;
    };

    void check_Name(const ZELVBTXMLNode& node, const ZELVBTXMLAttribute& name);
    bool has_SubClass(const ZELVBTXMLNode& node) const;

    RuleDocument& _Document;
    std::vector<Class> _CLASSES;
    std::vector<bool> _IsSuper;  ///< by element: whether a class of this document inherits from it
};

}  // namespace tool

#endif
