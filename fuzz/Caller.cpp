#include "Caller.h"

#include <iterator>

#include "OXMIDicElementH.h"
#include "ZanDicBOLink.h"
#include "ZanDicBObject.h"
#include "ZanDicCommand.h"
#include "ZanDicCommandParameter.h"

namespace {

constexpr ZELInterfaceId kIds[] = {
    IID_OXMIDicApp,
    IID_OXMIDicElementH,
    IID_OXMIDicMgr,
    IID_OXMIDicElement,
    IID_OXMIDicPackage,
    IID_OXMIDicClass,
    IID_OXMIDicInterface,
    IID_OXMIDicAttribute,
    IID_OXMIDicSimple,
    IID_OXMIDicRelationship,
    IID_OXMIDicInverse,
    IID_OXMIDicExtension,
    IID_OXMIDicAttributeBlock,
    IID_OXMIDicEnum,
    IID_OXMIDicEnumerator,
    IID_OXMIDicPrimitive,
    IID_OXMIDicCategory,
    IID_OXMIDicUnique,
    IID_OXMIDicMethod,
    IID_OXMIDicParameter,
    IID_OXMIDicCommand,
    IID_OXMIDicCommandParameter,
    IID_OXMIDicRBOClass,
    IID_OXMIDicRBOMapping,
    IID_OXMIDicRBORoot,
    IID_OXMIDicRBOComponent,
    IID_OXMIDicRBOPathExpression,
    IID_OXMIDicBObject,
    IID_OXMIDicBOLink,
    IUnknown::ClassId(),
    ZELInterfaceId{0, 0},
};

/// Texts that mean something somewhere.
constexpr std::string_view kTexts[] = {
    "",       "VALKOR", "DUVRA",      "UNDEFINED",  "String", "AnyObject", "Yes",       ".",
    "..",     "/",      "a/b",        "../x",       "a\\b",   "a.b",       "N1.tuning", "N1.metadata",
    "SELECT", "\xFF",   "\xC3\xA4\n", "<&\">]]>--", "_x",     "1",         "N1 N2",     " ",
};

constexpr std::int32_t kNumbers[] = {-1, 0, 1, 2, 255, 256, 65535, 0x7FFFFFFF, -0x7FFFFFFF - 1};

constexpr std::size_t kNames = 8;
constexpr std::size_t kUuids = 32;

/// \returns a UUID of 16 bytes that ends with \p number.
ZELDbBinary NumberedUuid(unsigned char number) {
    unsigned char bytes[ZELDbBinary::kCapacity] = {};
    bytes[ZELDbBinary::kCapacity - 1] = number;
    return {bytes, ZELDbBinary::kCapacity};
}

}  // namespace

Caller::Caller(std::string_view input, OXMIDicMgr& manager, const std::string& readable,
               const std::vector<std::string>& packages, const std::string& writable)
    : _Bytes(input), _Manager(manager), _Readable(readable), _PACKAGES(packages), _Writable(writable) {}

Caller::~Caller() { LetGoOfAll(); }

void Caller::Take(IUnknown* face) {
    if (face == nullptr) return;
    const std::size_t drawn = _Bytes.Below(4);
    if (drawn == 3) {
        face->Release();
    } else if (_HELD.size() < kMostHeld) {
        _HELD.push_back(face);
    } else {
        std::swap(_HELD[_Bytes.Below(kMostHeld)], face);
        face->Release();
    }
}

void Caller::TakeLists() {
    for (ZELListPtrIUnknown& list : _LISTS) {
        for (IUnknown* const entry : list) Take(entry);
        list.RemoveAll();
    }
    for (auto& list : _TEXTLISTS) list.RemoveAll();
    for (auto& list : _UNICODELISTS) list.RemoveAll();
}

IUnknown* Caller::Pick(const ZELInterfaceId& id) {
    if (_HELD.empty()) return nullptr;
    const std::size_t start = _Bytes.Below(_HELD.size());
    for (std::size_t step = 0; step < _HELD.size(); ++step) {
        void* found = nullptr;
        if (Succeeded(_HELD[(start + step) % _HELD.size()]->QueryInterface(id, &found))) {
            return static_cast<IUnknown*>(found);
        }
    }
    return nullptr;
}

void Caller::LetGoOfOne() {
    if (_HELD.empty()) return;
    std::swap(_HELD[_Bytes.Below(_HELD.size())], _HELD.back());
    IUnknown* const face = _HELD.back();
    _HELD.pop_back();
    face->Release();
}

void Caller::LetGoOfAll() {
    TakeLists();
    while (!_HELD.empty()) LetGoOfOne();
}

void Caller::Ask() {
    const ZELInterfaceId id = kIds[_Bytes.Below(std::size(kIds))];
    if (_HELD.empty()) return;
    IUnknown* const face = _HELD[_Bytes.Below(_HELD.size())];
    face->AddRef();
    void* found = nullptr;
    face->QueryInterface(id, DrawsNull() ? nullptr : &found);
    face->Release();
    Take(static_cast<IUnknown*>(found));
}

template <class Object>
void Caller::Construct(const ZELString& name) {
    auto* const object = new Object(name, DrawUuid());
    void* face = nullptr;
    object->bind_Interface(OXMDicTYPE_UNDEFINED, &face);
    if (_Bytes.Below(2) == 0) {
        // Registered by a UUID of its own, it is the manager's, whose End gives the reference back.
        const ZELDbBinary uuid = DrawUuid();
        object->SetUuid(&uuid);
    }
    if (!object->is_Registered()) object->Release();
    Take(static_cast<IUnknown*>(face));
}

void Caller::Construct() {
    const std::size_t kind = _Bytes.Below(4);
    const ZELString name(DrawText());
    switch (kind) {
        case 0:
            return Construct<ZanDicCommand>(name);
        case 1:
            return Construct<ZanDicCommandParameter>(name);
        case 2:
            return Construct<ZanDicBObject>(name);
        default:
            return Construct<ZanDicBOLink>(name);
    }
}

std::string Caller::DrawText() {
    const std::size_t drawn = _Bytes.Below(8);
    if (drawn < 4) return "N" + std::to_string(_Bytes.Below(kNames));
    if (drawn < 6) return _PACKAGES[_Bytes.Below(_PACKAGES.size())];
    if (drawn < 7) return std::string(kTexts[_Bytes.Below(std::size(kTexts))]);
    return std::string(_Bytes.Take(_Bytes.Below(256)));
}

ZELDbBinary Caller::DrawUuid() {
    const unsigned char drawn = _Bytes.Byte();
    if (drawn < 224) return NumberedUuid(drawn % kUuids);
    if (drawn < 240) {
        const std::string_view bytes = _Bytes.Take(drawn - 224U);
        return {reinterpret_cast<const unsigned char*>(bytes.data()), static_cast<int>(bytes.size())};
    }
    ZELDbBinary uuid;
    if (IUnknown* const face = Pick(IID_OXMIDicElementH)) {
        static_cast<OXMIDicElementH*>(face)->GetUuid(&uuid);
        face->Release();
    }
    return uuid;
}

const ZELString* Caller::Text(ZELString& own) {
    if (DrawsNull()) return nullptr;
    if (_Bytes.Below(8) == 7) return &_TEXTS[_Bytes.Below(kPlaces)];
    own = ZELString(std::string_view(DrawText()));
    return &own;
}

const ZELUnicodeString* Caller::Unicode(ZELUnicodeString& own) {
    if (DrawsNull()) return nullptr;
    if (_Bytes.Below(8) == 7) return &_UNICODES[_Bytes.Below(kPlaces)];
    own = ZELUnicodeString(std::string_view(DrawText()));
    return &own;
}

const ZELDbBinary* Caller::Uuid(ZELDbBinary& own) {
    if (DrawsNull()) return nullptr;
    if (_Bytes.Below(8) == 7) return &_UUIDS[_Bytes.Below(kPlaces)];
    own = DrawUuid();
    return &own;
}

const char* Caller::Directory(std::string& own) {
    static constexpr std::size_t kLong = 5000;
    switch (_Bytes.Below(12)) {
        case 0:
            return nullptr;
        case 1:
            return "";
        case 2:
            own = _Writable + "/missing";
            break;
        case 3:
            own = _Writable + ":" + _Readable + ":";
            break;
        case 4:
            own = _Writable + "\\";
            break;
        case 5:
            own = _Writable + "/" + std::string(kLong, 'x');
            break;
        case 6:
        case 7:
        case 8:
            own = _Readable;
            break;
        default:
            own = _Writable;
    }
    return own.c_str();
}

int Caller::DrawNumber() {
    const std::size_t drawn = _Bytes.Below(4);
    if (drawn < 2) return static_cast<int>(_Bytes.Below(8));
    return drawn == 2 ? kNumbers[_Bytes.Below(std::size(kNumbers))] : _Bytes.Number();
}
