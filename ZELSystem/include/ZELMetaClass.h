#ifndef ZELMETACLASS_H
#define ZELMETACLASS_H

#include <cstdint>
#include <span>
#include <string_view>

#include "ZELExport.h"
#include "ZELInterfaceId.h"

class ZELBaseUnknown;
class ZELTieLink;

/// One row of the query table: an interface and how a class answers it. ZELMakeTieRow makes it.
struct ZELSYSTEM_API ZELTieRow {
    ZELInterfaceId interfaceId;  ///< what a query asks for
    /// Makes the adapter, with a count of 1 and a reference on the object. Throws std::bad_alloc.
    ZELTieLink* (*make)(ZELBaseUnknown&);
};

/// What is known of a component class: its name, its base and the interfaces that it answers.
///
/// One constant-initialised object per class, alive as long as the class's library. Rows are registered
/// once, when that library is loaded; a query looks at the class's own rows first and then at its bases',
/// so it costs one comparison of identifiers per row passed.
/// One thread.
class ZELSYSTEM_API ZELMetaClass {
public:
    /// Makes an object of the class, born with one reference; null when the class has no such way.
    using Factory = ZELBaseUnknown* (*)();

    /// \param name the class's name, which must outlive this object.
    /// \param base metadata of the base class, or null for a root: its base is the null class "ZELNull".
    /// \param factory makes an object of the class; null when none is offered.
    constexpr explicit ZELMetaClass(const char* name, const ZELMetaClass* base = nullptr,
                                    Factory factory = nullptr) noexcept
        : _Name(name), _Base(base), _Factory(factory) {}

    ZELMetaClass(const ZELMetaClass&) = delete;
    ZELMetaClass& operator=(const ZELMetaClass&) = delete;

    const char* Name() const noexcept { return _Name; }
    const char* BaseName() const noexcept { return _Base != nullptr ? _Base->_Name : "ZELNull"; }
    const char* Family() const noexcept { return "ZELPLMDictionary"; }

    /// \returns whether \p name is this class or one of its bases. The null class is no base in this sense.
    bool IsAKindOf(std::string_view name) const noexcept;

    /// \returns whether \p other is this class or one of its bases.
    bool IsAKindOf(const ZELMetaClass& other) const noexcept {
        const ZELMetaClass* meta = this;
        while (meta != nullptr && meta != &other) meta = meta->_Base;
        return meta != nullptr;
    }

    /// Makes an object by the class's own factory. \returns null when the class has none.
    ZELBaseUnknown* CreateItself() const { return _Factory != nullptr ? _Factory() : nullptr; }

    /// Says which interfaces the class itself answers; the rows must outlive this object.
    /// A second call, or one while objects of the class have adapters, is a programming error and fatal.
    void RegisterTies(std::span<const ZELTieRow> rows);

    /// Finds the row for \p id: the class's own, else the nearest base's. What was found is remembered, so
    /// that asking again costs one comparison. \param[out] tag when not null: a number that no other row in
    /// the process has; written on success only. \returns null when neither the class nor a base answers \p
    /// id.
    const ZELTieRow* FindTie(const ZELInterfaceId& id, std::uint32_t* tag = nullptr) const noexcept {
        Found& found = _FOUND[(id.high ^ id.low) % kFoundCount];
        if (found.version != version || found.row->interfaceId != id) [[unlikely]] {
            if (!search_Tie(id, found)) return nullptr;
        }
        if (tag != nullptr) *tag = found.tag;
        return found.row;
    }

private:
    const char* _Name;
    const ZELMetaClass* _Base;
    Factory _Factory;
    const ZELTieRow* _Rows = nullptr;
    std::uint32_t _RowCount = 0;
    std::uint32_t _FirstTag = 0;

    /// A row that was asked for: the last one of those whose identifiers fall to this place.
    struct Found {
        const ZELTieRow* row;
        std::uint32_t tag;
        std::uint32_t version;  ///< of the tables in which it was found; 0 before
    };
    /// So many that the interfaces which callers ask of one class by turns have a place each.
    static constexpr unsigned kFoundCount = 16;

    bool search_Tie(const ZELInterfaceId& id, Found& found) const noexcept;

    static std::uint32_t version;  ///< grows whenever rows are registered
    mutable Found _FOUND[kFoundCount] = {};
};

#endif
