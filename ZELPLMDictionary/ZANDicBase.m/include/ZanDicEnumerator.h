#ifndef ZAN_DIC_ENUMERATOR_H
#define ZAN_DIC_ENUMERATOR_H

#include "ZanDicElement.h"

/// One named integer value of an enumeration. One thread.
class ZANDICBASE_API ZanDicEnumerator : public ZanDicElement {
public:
    /// The value is 0 at first.
    ZanDicEnumerator(const ZELString& name, const ZELDbBinary& uuid);
    ZanDicEnumerator(const ZanDicEnumerator&) = default;
    ZanDicEnumerator& operator=(const ZanDicEnumerator&) = default;
    ~ZanDicEnumerator() override;

    static ZELMetaClass& ClassMeta();
    static const char* ClassName() { return ClassMeta().Name(); }
    ZELMetaClass& MetaObject() const override { return ClassMeta(); }
    _type get_type() const override { return _type_Enumerator; }

    /// \returns S_OK; the getter E_FAIL for null.
    HRESULT GetValue(int* value) const;
    HRESULT SetValue(int value);

private:
    int _Value = 0;
};

#endif
