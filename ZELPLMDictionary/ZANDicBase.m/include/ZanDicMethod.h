#ifndef ZAN_DIC_METHOD_H
#define ZAN_DIC_METHOD_H

#include "ZanDicElement.h"
#include "ZanHashList.h"

/// A method of an interface or class: owns its parameters, in the order of creation.
///
/// A parameter that is removed from the list stays registered and lives as long as the method. A null pointer
/// as an argument gives E_FAIL and makes nothing. Out arguments and entries of lists carry one reference.
/// One thread.
class ZANDICBASE_API ZanDicMethod : public ZanDicElement {
public:
    ZanDicMethod(const ZELString& name, const ZELDbBinary& uuid);
    ZanDicMethod(const ZanDicMethod&) = delete;
    ZanDicMethod& operator=(const ZanDicMethod&) = delete;
    ~ZanDicMethod() override;

    static ZELMetaClass& ClassMeta();
    static const char* ClassName() { return ClassMeta().Name(); }
    ZELMetaClass& MetaObject() const override { return ClassMeta(); }
    _type get_type() const override { return _type_Method; }

    /// Makes a parameter, which gets no package.
    /// \param[out] parameter also written when only the registration failed, and the parameter is in the list
    /// then. \returns the result of the registration; E_FAIL when the name is taken or the method is gone,
    /// and nothing is made.
    HRESULT CreateParameter(const ZELString* name, const ZELDbBinary* uuid, OXMIDicParameter** parameter);

    /// Obsolete: always writes a notice. \returns E_FAIL.
    HRESULT CreateParameter(const ZELString* name, OXMIDicParameter** parameter);

    /// \returns S_OK; E_FAIL, with \p parameter untouched, when there is none of that name.
    HRESULT GetParameter(const ZELString* name, OXMIDicParameter** parameter) const;

    /// Appends interfaces. \returns the last query's result, S_OK for none; E_FAIL for a null list.
    HRESULT GetParameters(ZELListPtrIUnknown* parameters) const;

    /// Takes a parameter out of the list, no more. \returns S_OK; E_FAIL when there is none of that name.
    HRESULT RemoveParameter(const ZELString* name);

    /// Flushes, unregisters and releases the parameters. \returns S_OK; the failing result of a parameter's
    /// FlushAll.
    HRESULT FlushAll() override;

    // What follows is for the library itself.

    ZanDicOwnedList owned_List() override;
    void take_Owned(ZanDicTaken& owned) override;

protected:
    void drop_Links() override;

private:
    ZanHashList _PARAMETERS;                             ///< this method owns one reference to each
    ZanHashList _REMOVED{29, ZanHashListKind::Unnamed};  ///< and to each that was removed from the list
};

#endif
