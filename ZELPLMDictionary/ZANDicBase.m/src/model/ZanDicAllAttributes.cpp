#include "ZanDicAllAttributes.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "ZELHash.h"

constinit std::uint64_t ZanDicHierarchy::state = 1;
constinit std::uint64_t ZanDicHierarchy::answers = 1;

namespace {

/// From so many classes on, inherited attributes are found by an index of their names.
constexpr std::size_t kLongWay = 8;

/// An answer that is made up of more than twice as many answers as it has attributes stands alone.
constexpr std::uint32_t kDepthAllowed = 8;

}  // namespace

ZanDicAllAttributes::~ZanDicAllAttributes() {
    // One by one: a base that only this answer held would destroy its own base in turn, as deep as that goes.
    for (Answer base = std::move(_Base); base != nullptr && base.use_count() == 1;) {
        Answer next = std::move(base->_Base);
        base = std::move(next);
    }
}

ZanDicAllAttributes::List ZanDicAllAttributes::Listed() const {
    std::vector<const ZanDicAllAttributes*> parts;
    parts.reserve(_Depth);
    for (const ZanDicAllAttributes* part = this; part != nullptr; part = part->_Base.get()) {
        parts.push_back(part);
    }
    List listed;
    listed.reserve(_Size);
    for (auto part = parts.rbegin(); part != parts.rend(); ++part) {
        for (const Replacement& replaced : (*part)->_REPLACED) listed[replaced.index] = replaced.by.Get();
        for (const ZanDicLink<ZanDicAttribute>& added : (*part)->_ADDED) listed.push_back(added.Get());
    }
    return listed;
}

ZanDicAllAttributes::List ZanDicAllAttributes::ListAlive(const Answer& answer) {
    List listed;
    if (answer != nullptr) listed = answer->Listed();
    std::erase(listed, nullptr);
    return listed;
}

/// Where inherited attributes of a name stand.
struct ZanDicAllAttributes::Descent::Names {
    std::unordered_multimap<std::string_view, std::uint32_t, ZELTextHash> indexes;
    std::size_t entered = 0;  ///< how many of the list are in

    void Enter(const List& listed) {
        for (; entered < listed.size(); ++entered) {
            if (listed[entered] == nullptr) continue;
            indexes.emplace(listed[entered]->Name().View(), static_cast<std::uint32_t>(entered));
        }
    }
};

ZanDicAllAttributes::Descent::Descent(Answer super, std::size_t length)
    : _Answer(std::move(super)), _Names(length >= kLongWay ? std::make_unique<Names>() : nullptr) {}

ZanDicAllAttributes::Descent::~Descent() = default;

std::vector<ZanDicAllAttributes::Descent::Redefinition> ZanDicAllAttributes::Descent::FindRedefinitions(
    const ZanHashList& own) {
    std::vector<Redefinition> found;
    ZanDicObj* object = nullptr;
    bool byIndex = _Names != nullptr;
    for (int position = 1; byIndex && position <= own.Size(); ++position) {
        // A member that was renamed is known to its class under its first name.
        byIndex = Succeeded(own.Search(own[position]->Name(), &object)) && object == own[position];
    }
    if (!byIndex) {
        for (std::uint32_t index = 0; index < _LISTED.size(); ++index) {
            if (_LISTED[index] == nullptr || Failed(own.Search(_LISTED[index]->Name(), &object))) continue;
            found.emplace_back(index, static_cast<ZanDicAttribute*>(object));
        }
        // A redefinition may bear another name by now than what it redefines.
        if (_Names != nullptr) _Names = std::make_unique<Names>();
        return found;
    }
    _Names->Enter(_LISTED);
    for (int position = 1; position <= own.Size(); ++position) {
        auto* const attribute = static_cast<ZanDicAttribute*>(own[position]);
        const auto [from, to] = _Names->indexes.equal_range(attribute->Name().View());
        for (auto at = from; at != to; ++at) found.emplace_back(at->second, attribute);
    }
    std::sort(found.begin(), found.end());
    return found;
}

ZanDicAllAttributes::Answer ZanDicAllAttributes::Descent::Next(const ZanHashList& own) {
    const int size = own.Size();
    if (size == 0) return _Answer;
    if (!_IsListed) {
        if (_Answer != nullptr) _LISTED = _Answer->Listed();
        _IsListed = true;
    }

    const auto answer = std::make_shared<ZanDicAllAttributes>();
    for (const auto& [index, attribute] : FindRedefinitions(own)) {
        attribute->set_Specialized(_LISTED[index]);
        answer->_REPLACED.push_back({index, ZanDicLink<ZanDicAttribute>(attribute)});
    }
    for (const Replacement& replaced : answer->_REPLACED) _LISTED[replaced.index] = replaced.by.Get();
    answer->_ADDED.reserve(static_cast<std::size_t>(size));
    for (int position = 1; position <= size; ++position) {
        auto* const attribute = static_cast<ZanDicAttribute*>(own[position]);
        // Deliberate: what once redefined an attribute is left out for good when that is no longer inherited
        // (ZanDicClassHierarchyTest.AFormerRedefinitionIsNotListedAgain).
        if (attribute->get_Specialized() != nullptr) continue;
        answer->_ADDED.emplace_back(attribute);
        _LISTED.push_back(attribute);
    }

    answer->_Size = static_cast<std::uint32_t>(_LISTED.size());
    answer->_Depth = _Answer != nullptr ? _Answer->_Depth + 1 : 1;
    answer->_Base = _Answer;
    if (answer->_Depth > 2 * answer->_Size + kDepthAllowed) {
        answer->_Base.reset();
        answer->_REPLACED.clear();
        answer->_ADDED.clear();
        for (ZanDicAttribute* attribute : _LISTED) answer->_ADDED.emplace_back(attribute);
        answer->_Depth = 1;
    }
    _Answer = answer;
    return _Answer;
}
