#ifndef ZAN_DIC_SCOPE_H
#define ZAN_DIC_SCOPE_H

#include <unordered_set>

#include "ZELBaseUnknown.h"
#include "ZELDbBinary.h"
#include "ZanDicExport.h"
#include "ZanDicLinkList.h"

class ZanDicClass;

/// The classes to which an attribute applies: those named, and once expanded the UUIDs of all below them.
///
/// The named classes are links, by identity. The expansion is made when it is first asked for, and made anew
/// after the named classes have changed; a subclass attached meanwhile is not seen. One thread.
class ZANDICBASE_API ZanDicScope : public ZELBaseUnknown {
public:
    ZanDicScope();
    ZanDicScope(const ZanDicScope&) = default;
    ZanDicScope& operator=(const ZanDicScope&) = default;
    ~ZanDicScope() override;

    static ZELMetaClass& ClassMeta();
    static const char* ClassName();
    ZELMetaClass& MetaObject() const override { return ClassMeta(); }

    /// The named classes, in order; one that is gone counts as absent.
    const ZanDicLinkList<ZanDicClass>& Classes() const { return _CLASSES; }

    /// Adds a class and forgets the expansion. \returns S_OK; S_FALSE when it is named already; E_FAIL when
    /// it is gone.
    HRESULT AddClass(ZanDicClass& scope);

    /// Takes a class out and forgets the expansion. \returns S_OK; E_FAIL when it is not named.
    HRESULT RemoveClass(const ZanDicClass& scope);

    /// Whether the scope restricts anything: it names classes, or did before they went. One that was
    /// emptied by hand does not.
    bool Restricts() const;

    /// Whether the class of that UUID is named or below one that is. Expands where that was not done yet.
    bool Holds(const ZELDbBinary& classUuid);

    /// Adds \p root and everything below it to the expansion, breadth first; writes two lines per subclass
    /// to standard error, whatever the trace settings, once all are found. Linear.
    void Expand(ZanDicClass& root);

private:
    struct UuidHash {
        std::size_t operator()(const ZELDbBinary& uuid) const { return uuid.ComputeHashKey(); }
    };

    ZanDicLinkList<ZanDicClass> _CLASSES;                 ///< not owning, by identity
    std::unordered_set<ZELDbBinary, UuidHash> _EXPANDED;  ///< UUIDs; empty until expanded
    int _LostAtExpansion = 0;                             ///< named classes gone when that was made
};

#endif
