// The RBO kinds. A reference of theirs is kept three times, as link, as UUID and as name: what is linked is
// written, else what is stored.

#include "OXMIDicClass.h"
#include "OXMIDicRBOClass.h"
#include "OXMIDicRBOComponent.h"
#include "OXMIDicRBOMapping.h"
#include "OXMIDicRBOPathExpression.h"
#include "OXMIDicRBORoot.h"
#include "WriterTexts.h"
#include "XmlRows.h"
#include "ZANDicTags.h"

namespace {

using namespace ZANDicFormat;
using LinkName = ZanDicObj::LinkName;

/// The name of what \p GetLink hands out, else the one that \p GetName gives.
template <class Target, auto GetLink, auto GetName, class Interface>
HRESULT LinkedName(XmlNode& node, Interface& element, std::string_view word) {
    ZanDicRef<Target> target;
    (element.*GetLink)(target.Out());
    ZELUnicodeString name;
    if (target) {
        name = ZELUnicodeString(emit::NameOf(*target));
    } else {
        (element.*GetName)(&name);
    }
    if (!name.IsEmpty()) node.Text(word, name.View());
    return S_OK;
}

/// The UUID of what \p GetLink hands out, else the one that \p GetRef gives, with a warning when the object
/// is gone.
template <class Target, auto GetLink, auto GetRef, LinkName link, class Interface>
HRESULT LinkedRef(XmlNode& node, Interface& element, std::string_view word) {
    ZanDicRef<Target> target;
    (element.*GetLink)(target.Out());
    ZELDbBinary uuid;
    if (target) {
        uuid = emit::UuidOf(*target);
    } else {
        (element.*GetRef)(&uuid);
        node.WarnLost(element, link, word, uuid.IsEmpty() ? writer::kLostLink : writer::kLostLinkKept);
    }
    node.Uuid(word, uuid);
    return S_OK;
}

template <class Interface>
inline constexpr XmlRow<Interface> kIdentityRows[] = {
    {word::kName, emit::Text<&OXMIDicElementH::GetName>},
    {word::kUuid, emit::Uuid},
    {word::kAlias, emit::LongText<&OXMIDicElement::GetAlias>},
};

constexpr XmlRow<OXMIDicRBOMapping> kMappingRows[] = {
    {word::kApplyToRBOClass, LinkedName<OXMIDicRBOClass, &OXMIDicRBOMapping::GetApplyToRBOClass,
                                        &OXMIDicRBOMapping::GetApplyToRBOClassName>},
    {word::kApplyToRBOClassRef, LinkedRef<OXMIDicRBOClass, &OXMIDicRBOMapping::GetApplyToRBOClass,
                                          &OXMIDicRBOMapping::GetApplyToRBOClassRef, LinkName::RBOClass>},
};

/// The base class of a root or a component.
template <class Interface>
inline constexpr XmlRow<Interface> kBaseClassRows[] = {
    {word::kBaseClass, LinkedName<OXMIDicClass, &Interface::GetBaseClass, &Interface::GetBaseClassName>},
    {word::kBaseClassRef,
     LinkedRef<OXMIDicClass, &Interface::GetBaseClass, &Interface::GetBaseClassRef, LinkName::BaseClass>},
};

constexpr XmlRow<OXMIDicRBOComponent> kComponentRows[] = {
    {word::kValidityRule, emit::SomeText<&OXMIDicRBOComponent::GetValidityRule>},
};

constexpr XmlRow<OXMIDicRBOPathExpression> kPathRows[] = {
    {word::kType, emit::SomeText<&OXMIDicRBOPathExpression::GetPathExprType>},
    {word::kSubType, emit::SomeText<&OXMIDicRBOPathExpression::GetPathExprSubType>},
    {word::kTargetName, LinkedName<OXMIDicElement, &OXMIDicRBOPathExpression::GetTarget,
                                   &OXMIDicRBOPathExpression::GetTargetName>},
    {word::kTargetRef, LinkedRef<OXMIDicElement, &OXMIDicRBOPathExpression::GetTarget,
                                 &OXMIDicRBOPathExpression::GetTargetRef, LinkName::PathTarget>},
};

/// An object of that type code without the interface of its kind has its identity and says so.
HRESULT WritePath(XmlNode& node, IUnknown& element) {
    if (As<OXMIDicRBOPathExpression>(element)) {
        return WriteRows<OXMIDicRBOPathExpression, kIdentityRows<OXMIDicRBOPathExpression>, kPathRows>(
            node, element);
    }
    const ZanDicRef<OXMIDicElement> face = As<OXMIDicElement>(element);
    if (!face) return E_FAIL;
    const HRESULT rc = WriteEach(node, *face, kIdentityRows<OXMIDicElement>);
    node.Word(word::kType, writer::kUnknownPath);
    WriteFreeAttributes(node, *face);
    return rc;
}

/// The components, then the path expression.
HRESULT ListComponentChildren(IUnknown& element, ZELListPtrIUnknown* children) {
    const ZanDicRef<OXMIDicRBOComponent> component = As<OXMIDicRBOComponent>(element);
    if (!component) return E_FAIL;
    component->GetElements(children);
    ZanDicRef<OXMIDicRBOPathExpression> path;
    component->GetRBOPathExpression(path.Out());
    if (!path) return S_OK;
    children->Append(path.Get());
    path.Detach();
    return S_OK;
}

}  // namespace

constexpr XmlKind kRBOClassKind{OXMDicTYPE_RBOClass, writer::kDisplayRBOClass, FixedTag<tag::kRBOClass>,
                                WriteRows<OXMIDicRBOClass, kIdentityRows<OXMIDicRBOClass>>, nullptr};
constexpr XmlKind kRBOMappingKind{
    OXMDicTYPE_RBOMapping, writer::kDisplayRBOMapping, FixedTag<tag::kRBOMapping>,
    WriteRows<OXMIDicRBOMapping, kIdentityRows<OXMIDicRBOMapping>, kMappingRows>,
    ListChildren<OXMIDicRBOMapping, &OXMIDicRBOMapping::GetElements>};
constexpr XmlKind kRBORootKind{
    OXMDicTYPE_RBORoot, writer::kDisplayRBORoot, FixedTag<tag::kRBORoot>,
    WriteRows<OXMIDicRBORoot, kIdentityRows<OXMIDicRBORoot>, kBaseClassRows<OXMIDicRBORoot>>,
    ListChildren<OXMIDicRBORoot, &OXMIDicRBORoot::GetElements>};
constexpr XmlKind kRBOComponentKind{OXMDicTYPE_RBOComponent, writer::kDisplayRBOComponent,
                                    FixedTag<tag::kRBOComponent>,
                                    WriteRows<OXMIDicRBOComponent, kIdentityRows<OXMIDicRBOComponent>,
                                              kBaseClassRows<OXMIDicRBOComponent>, kComponentRows>,
                                    ListComponentChildren};
constexpr XmlKind kRBOPathExpressionKind{OXMDicTYPE_RBOPathExpression, writer::kDisplayRBOPathExpression,
                                         FixedTag<tag::kRBOPathExpression>, WritePath, nullptr};
