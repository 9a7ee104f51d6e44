#ifndef ZAN_DIC_EXTENSION_H
#define ZAN_DIC_EXTENSION_H

#include "ZanDicClass.h"

/// Attributes added to classes that exist already: a class of its own kind, with the classes that it extends,
/// its scopes.
///
/// Scopes are links, told apart by identity: two classes of one name from different packages both stand, and
/// a class that is gone counts as absent. An extension may stand below a class or an extension. One thread.
class ZANDICBASE_API ZanDicExtension : public ZanDicClass {
public:
    ZanDicExtension(const ZELString& name, const ZELDbBinary& uuid);
    ~ZanDicExtension() override;

    static ZELMetaClass& ClassMeta();
    static const char* ClassName() { return ClassMeta().Name(); }
    ZELMetaClass& MetaObject() const override { return ClassMeta(); }

    /// \returns S_OK; S_FALSE when the class is a scope already; E_FAIL for null, for what is no class in the
    /// dictionary, or when the extension itself is gone.
    HRESULT AddScope(const OXMIDicClass* scope);

    /// Takes exactly that class out. \returns S_OK, also when no scope was ever added; E_FAIL for null or for
    /// a class that is no scope.
    HRESULT RemoveScope(const OXMIDicClass* scope);

    /// Appends the own scopes and then those of the super classes for as long as they are extensions,
    /// nearest first. \returns S_OK; E_FAIL for a null list.
    HRESULT GetScopes(ZELListPtrIUnknown* scopes) const;

protected:
    void drop_Links() override;
    int lost_Links(LinkName link) const override;

private:
    bool _ScopesMade = false;             ///< whether a scope was ever added
    ZanDicLinkList<ZanDicClass> _SCOPES;  ///< not owning, by identity
};

#endif
