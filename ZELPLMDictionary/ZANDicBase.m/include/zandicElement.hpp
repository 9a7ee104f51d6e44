/// What every object has, UUIDs as texts, and the members of packages and classes for range-for.
/// Part of `zandic.hpp`.
#ifndef ZANDIC_ELEMENT_HPP
#define ZANDIC_ELEMENT_HPP

#include <algorithm>
#include <optional>
#include <string_view>

#include "HexToBinary.h"
#include "OXMIDicAttribute.h"
#include "OXMIDicAttributeBlock.h"
#include "OXMIDicClass.h"
#include "OXMIDicElement.h"
#include "OXMIDicPackage.h"
#include "OXMIDicParameter.h"
#include "ZELUuid.h"
#include "zandicHandle.hpp"

namespace zandic {

/// Identity of an object. A name and a UUID may be empty.
inline ZELString Name(OXMIDicElementH& object) {
    ZELString name;
    object.GetName(&name);
    return name;
}
inline ZELDbBinary Uuid(OXMIDicElementH& object) {
    ZELDbBinary uuid;
    object.GetUuid(&uuid);
    return uuid;
}
inline OXMDicTYPE Kind(OXMIDicElementH& object) {
    OXMDicTYPE kind = OXMDicTYPE_UNDEFINED;
    object.GetType(&kind);
    return kind;
}

/// \returns what types the attribute: a primitive, an enumeration or a class; null without a type.
inline Handle<OXMIDicElement> TypeOf(OXMIDicAttribute& attribute) {
    Handle<OXMIDicElement> type;
    attribute.GetType(type.Out());
    return type;
}

/// \returns what types the parameter: an element of any kind; null without a type.
inline Handle<OXMIDicElement> TypeOf(OXMIDicParameter& parameter) {
    Handle<OXMIDicElement> type;
    parameter.GetType(type.Out());
    return type;
}

/// The free attributes of an object, in order, for range-for: pairs of name and value.
class FreeAttributes {
public:
    struct Pair {
        std::string_view name;
        std::string_view value;
    };

    class Iterator {
    public:
        Iterator(const FreeAttributes& all, int position) noexcept : _All(&all), _Position(position) {}

        Pair operator*() const noexcept {
            return {_All->_NAMES[_Position].View(), _All->_VALUES[_Position].View()};
        }
        Iterator& operator++() noexcept {
            ++_Position;
            return *this;
        }
        friend bool operator==(const Iterator& a, const Iterator& b) noexcept {
            return a._Position == b._Position;
        }

    private:
        const FreeAttributes* _All;
        int _Position;
    };

    explicit FreeAttributes(OXMIDicElementH& object) { object.GetAllOtherAttributes(_NAMES, _VALUES); }

    int Size() const noexcept { return _NAMES.Size(); }
    Iterator begin() const noexcept { return {*this, 1}; }
    Iterator end() const noexcept { return {*this, Size() + 1}; }

private:
    ZELListValZELUnicodeString _NAMES;
    ZELListValZELUnicodeString _VALUES;
};

/// The text of a UUID: 35 characters, or "UNDEFINED" when it is empty.
class UuidText {
public:
    static constexpr int kLength = 35;

    explicit UuidText(const ZELDbBinary& uuid) noexcept : _Empty(uuid.Length() < ZELDbBinary::kCapacity) {
        if (_Empty) return;
        unsigned char bytes[ZELDbBinary::kCapacity];
        std::copy_n(uuid.Data(), ZELDbBinary::kCapacity, bytes);
        UuidBinToHexa(bytes, ZELDbBinary::kCapacity, _Text, kLength + 1);
    }

    /// \returns the text; valid while this object lives.
    std::string_view View() const noexcept {
        return _Empty ? std::string_view("UNDEFINED")
                      : std::string_view(reinterpret_cast<const char*>(_Text), kLength);
    }

private:
    unsigned char _Text[kLength + 1] = {};
    bool _Empty;
};

/// Reads a UUID: 32 hexadecimal digits of either case; single dashes may stand between bytes.
/// \returns none for anything else.
inline std::optional<ZELDbBinary> ParseUuid(std::string_view text) {
    int digits = 0;
    bool dash = true;  // none may stand first
    for (const char c : text) {
        const bool isDigit = (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
        if (isDigit ? digits == 2 * ZELDbBinary::kCapacity : c != '-' || dash || digits % 2 != 0) {
            return std::nullopt;
        }
        digits += isDigit ? 1 : 0;
        dash = !isDigit;
    }
    if (digits != 2 * ZELDbBinary::kCapacity || dash) return std::nullopt;
    ZELString digitText(text);
    ZELDbBinary uuid;
    UuidHexToBinary(&digitText, &uuid);
    return uuid;
}

/// \returns a UUID that nothing else has.
inline ZELDbBinary NewUuid() { return getuuid(); }

// What a package or a class holds, in its order, for range-for:
//
//     for (OXMIDicClass& each : zandic::Classes(*package))

inline List<OXMIDicElement> Elements(OXMIDicPackage& package) {
    return All<OXMIDicElement>(package, &OXMIDicPackage::GetElements);
}
inline List<OXMIDicClass> Classes(OXMIDicPackage& package) {
    return All<OXMIDicClass>(package, &OXMIDicPackage::GetClasses);
}
/// The class's own attributes.
inline List<OXMIDicAttribute> OwnAttributes(OXMIDicClass& element) {
    return All<OXMIDicAttribute>(element, &OXMIDicClass::GetClassElements);
}
/// Its own attributes and those that it inherits.
inline List<OXMIDicAttribute> Attributes(OXMIDicClass& element) {
    return All<OXMIDicAttribute>(element, &OXMIDicClass::GetAllElements);
}
inline List<OXMIDicClass> SubClasses(OXMIDicClass& element) {
    return All<OXMIDicClass>(element, &OXMIDicClass::GetSubClasses);
}
/// Every attribute block that the class sees, its own and inherited ones.
inline List<OXMIDicAttributeBlock> Blocks(OXMIDicClass& element) {
    return All<OXMIDicAttributeBlock>(element, &OXMIDicClass::GetAllAttributeBlockList);
}
/// The attributes of a block, its own and inherited ones.
inline List<OXMIDicAttribute> Attributes(OXMIDicAttributeBlock& block) {
    return All<OXMIDicAttribute>(block, &OXMIDicAttributeBlock::GetAttributes);
}

}  // namespace zandic

#endif
