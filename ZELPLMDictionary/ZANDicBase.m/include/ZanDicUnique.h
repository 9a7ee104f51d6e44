#ifndef ZAN_DIC_UNIQUE_H
#define ZAN_DIC_UNIQUE_H

#include "ZanDicElement.h"
#include "ZanHashList.h"

/// A unique key of a class: an ordered set of attributes, which it does not own. An attribute that is gone
/// counts as absent. One thread.
class ZANDICBASE_API ZanDicUnique : public ZanDicElement {
public:
    ZanDicUnique(const ZELString& name, const ZELDbBinary& uuid);
    ZanDicUnique(const ZanDicUnique&) = delete;
    ZanDicUnique& operator=(const ZanDicUnique&) = delete;
    ~ZanDicUnique() override;

    static ZELMetaClass& ClassMeta();
    static const char* ClassName() { return ClassMeta().Name(); }
    ZELMetaClass& MetaObject() const override { return ClassMeta(); }
    _type get_type() const override { return _type_Unique; }

    /// \returns S_OK; E_FAIL for null, for what is not in the dictionary, or when one of that name is in.
    HRESULT AddElement(const OXMIDicElement* element);
    /// Takes out what bears the name of \p element. \returns S_OK; E_FAIL for null or an unknown name.
    HRESULT RemoveElement(const OXMIDicElement* element);
    /// Appends interfaces, one reference each. \returns the last query's result, S_OK for none; E_FAIL for a
    /// null list.
    HRESULT GetElements(ZELListPtrIUnknown* elements) const;
    int lost_Links(LinkName link) const override;

protected:
    void drop_Links() override;

private:
    ZanHashList _ELEMENTS;  ///< not owning
};

#endif
