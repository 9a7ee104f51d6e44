#include "ZanDicLinkList.h"

#include <algorithm>
#include <cstdint>
#include <new>
#include <unordered_map>
#include <vector>

#include "ZanDicLink.h"

namespace {

/// Up to so many links are searched one by one.
constexpr std::size_t kSmall = 8;

}  // namespace

/// Links in order. A removed one leaves an unset link behind until the next packing; the index, made once the
/// list is no longer small, finds a link by its object's identity, which stays that object's for as long as
/// the link is held here. Without memory for the index there is none, and links are searched one by one.
struct ZanDicLinkListBase::Store {
    std::vector<ZanDicLink<ZanDicObj>> links;
    std::unordered_map<std::uint32_t, std::uint32_t> index;  ///< identity -> place in links; empty when small
    std::uint32_t removed = 0;                               ///< unset links among them
    std::uint64_t seenLostCount = ZanDicLinkBase::LostCount();
    int lost = 0;

    std::size_t Find(const ZanDicObj& object) const {
        const std::uint32_t identity = ZanDicLinkBase::IdentityOf(object);
        if (identity == 0) return links.size();
        if (!index.empty()) {
            const auto found = index.find(identity);
            return found != index.end() ? found->second : links.size();
        }
        std::size_t at = 0;
        while (at < links.size() && links[at].Identity() != identity) ++at;
        return at;
    }

    void Index() noexcept {
        index.clear();
        if (links.size() <= kSmall) return;
        try {
            index.reserve(links.size());
            for (std::size_t at = 0; at < links.size(); ++at) Enter(at);
        } catch (const std::bad_alloc&) {
            index.clear();
        }
    }

    void MakeRoom(std::size_t count) {
        if (links.size() + count <= links.capacity()) return;
        // What is gone makes room before the list grows; a list that is mostly alive grows all the same.
        if (seenLostCount != ZanDicLinkBase::LostCount()) Pack();
        const std::size_t needed = links.size() + count;
        const bool isMostlyAlive = links.size() > links.capacity() / 2;
        if (needed > links.capacity() || isMostlyAlive) links.reserve(std::max(needed, 2 * links.capacity()));
    }

    void Append(ZanDicObj& object) {
        MakeRoom(1);
        links.emplace_back(&object);
        if (links.size() == kSmall + 1) {
            Pack();
            Index();
        } else if (!index.empty()) {
            IndexLast();
        }
    }

    void Enter(std::size_t at) { index.emplace(links[at].Identity(), static_cast<std::uint32_t>(at)); }

    void IndexLast() noexcept {
        try {
            Enter(links.size() - 1);
        } catch (const std::bad_alloc&) {
            index.clear();
        }
    }

    void RemoveAt(std::size_t at) noexcept {
        index.erase(links[at].Identity());
        links[at].Reset();
        ++removed;
        if (removed > kSmall && removed > links.size() / 2) Pack();
    }

    /// Drops the links that are unset or lost.
    void Pack() noexcept {
        const std::size_t before = links.size();
        std::erase_if(links, [this](const ZanDicLink<ZanDicObj>& link) {
            if (link.IsLost()) ++lost;
            return !link;
        });
        removed = 0;
        seenLostCount = ZanDicLinkBase::LostCount();
        if (links.size() != before) Index();
    }

    /// Makes places in links what callers see.
    void Settle() {
        if (removed != 0 || seenLostCount != ZanDicLinkBase::LostCount()) Pack();
    }
};

ZanDicLinkListBase::ZanDicLinkListBase() noexcept = default;
ZanDicLinkListBase::ZanDicLinkListBase(ZanDicLinkListBase&& other) noexcept = default;
ZanDicLinkListBase& ZanDicLinkListBase::operator=(ZanDicLinkListBase&& other) noexcept = default;
ZanDicLinkListBase::~ZanDicLinkListBase() = default;

ZanDicLinkListBase::ZanDicLinkListBase(const ZanDicLinkListBase& other)
    : _STORE(other._STORE ? std::make_unique<Store>(*other._STORE) : nullptr) {}

ZanDicLinkListBase& ZanDicLinkListBase::operator=(const ZanDicLinkListBase& other) {
    _STORE = other._STORE ? std::make_unique<Store>(*other._STORE) : nullptr;
    return *this;
}

int ZanDicLinkListBase::Size() const {
    if (!_STORE) return 0;
    if (_STORE->seenLostCount != ZanDicLinkBase::LostCount()) _STORE->Pack();
    return static_cast<int>(_STORE->links.size() - _STORE->removed);
}

void ZanDicLinkListBase::RemoveAll() noexcept { _STORE.reset(); }

int ZanDicLinkListBase::LostCount() const {
    if (!_STORE) return 0;
    _STORE->Settle();
    return _STORE->lost;
}

void ZanDicLinkListBase::expect(int count) {
    if (!_STORE) _STORE = std::make_unique<Store>();
    _STORE->MakeRoom(static_cast<std::size_t>(count));
}

bool ZanDicLinkListBase::append_Obj(ZanDicObj& object) {
    if (ZanDicLink<ZanDicObj>(&object).IsLost() || holds_Obj(object)) return false;
    if (!_STORE) _STORE = std::make_unique<Store>();
    _STORE->Append(object);
    return true;
}

bool ZanDicLinkListBase::remove_Obj(const ZanDicObj& object) {
    if (!_STORE) return false;
    const std::size_t at = _STORE->Find(object);
    if (at == _STORE->links.size()) return false;
    _STORE->RemoveAt(at);
    return true;
}

bool ZanDicLinkListBase::holds_Obj(const ZanDicObj& object) const {
    return _STORE && _STORE->Find(object) != _STORE->links.size();
}

ZanDicObj* ZanDicLinkListBase::at(int position) const {
    if (position < 1 || position > Size()) return nullptr;
    _STORE->Settle();
    return _STORE->links[static_cast<std::size_t>(position) - 1].Get();
}
