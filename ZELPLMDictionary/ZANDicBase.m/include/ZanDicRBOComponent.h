#ifndef ZAN_DIC_RBO_COMPONENT_H
#define ZAN_DIC_RBO_COMPONENT_H

#include "ZanDicRBONode.h"

class ZanDicRBOPathExpression;

/// A component of a mapping; beside further components it may own one path expression. One thread.
class ZANDICBASE_API ZanDicRBOComponent : public ZanDicRBONode {
public:
    ZanDicRBOComponent(const ZELString& name, const ZELDbBinary& uuid);
    ~ZanDicRBOComponent() override;

    static ZELMetaClass& ClassMeta();
    static const char* ClassName() { return ClassMeta().Name(); }
    ZELMetaClass& MetaObject() const override { return ClassMeta(); }

    /// \param[out] path carries one reference. \returns S_OK; E_FAIL, with nothing made or kept, when there
    /// is one already, the UUID is taken or this object is gone.
    HRESULT CreateRBOPathExpression(const ZELString* name, const ZELDbBinary* uuid,
                                    OXMIDicRBOPathExpression** path);
    /// \returns S_OK; E_FAIL when there is none.
    HRESULT GetRBOPathExpression(OXMIDicRBOPathExpression** path) const;

    /// \returns S_OK; the getter S_FALSE, with \p rule emptied, when the rule is empty.
    HRESULT SetValidityRule(const ZELUnicodeString* rule);
    HRESULT GetValidityRule(ZELUnicodeString* rule) const;

    /// Appends the components; a null list is accepted. \returns the last query's result, S_OK for none.
    HRESULT GetElements(ZELListPtrIUnknown* components) const;

    // What follows is for the library itself.

    ZanDicOwnedList owned_List() override;
    /// The path expression goes after the components.
    HRESULT flush_Rest(const ZanDicTraceScope& trace) override;
    void take_Owned(ZanDicTaken& owned) override;

protected:
    void drop_Links() override;

private:
    ZELUnicodeString _ValidityRule{""};
    ZanHashList _PATHEXPRESSION{1, ZanHashListKind::Unnamed};  ///< at most one; this component owns it
};

#endif
