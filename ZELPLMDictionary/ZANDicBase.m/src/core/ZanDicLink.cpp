#include "ZanDicLink.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "ZanDicObj.h"

namespace {

constexpr std::uint32_t kLostPlace = 1;
constexpr std::uint32_t kFirstChunk = 1024;

// Numbers only, so that the table outlives every destructor; the memory stays reachable until the end.
constinit std::uint32_t placeCount = 2;
constinit std::uint32_t capacity = 2;
constinit std::uint32_t freePlace = 0;  ///< the first of the free places; 0 when there is none

}  // namespace

// Place 1 counts one link more than there are, so that it is never free.
constinit ZanDicLinkBase::Place ZanDicLinkBase::firstPlaces[2] = {{nullptr, 0, 0}, {nullptr, 1, 0}};
constinit ZanDicLinkBase::Place* ZanDicLinkBase::places = ZanDicLinkBase::firstPlaces;
constinit std::uint64_t ZanDicLinkBase::lostCount = 0;

ZanDicLinkBase::ZanDicLinkBase(const ZanDicLinkBase& other) noexcept : _Place(other._Place) {
    if (_Place != 0) ++places[_Place].links;
}

ZanDicLinkBase& ZanDicLinkBase::operator=(const ZanDicLinkBase& other) noexcept {
    const std::uint32_t place = other._Place;  // other may be this very link
    if (place != 0) ++places[place].links;
    Reset();
    _Place = place;
    return *this;
}

ZanDicLinkBase& ZanDicLinkBase::operator=(ZanDicLinkBase&& other) noexcept {
    std::swap(_Place, other._Place);
    return *this;
}

std::uint32_t ZanDicLinkBase::IdentityOf(const ZanDicObj& object) { return object._LinkPlace; }

void ZanDicLinkBase::Set(ZanDicObj* object) {
    std::uint32_t place = 0;
    if (object != nullptr) {
        place = object->is_Gone() ? kLostPlace : PlaceOf(*object);
        ++places[place].links;
    }
    Reset();
    _Place = place;
}

void ZanDicLinkBase::Lose() noexcept {
    if (_Place == 0) return;
    Drop();
    _Place = kLostPlace;
    ++places[kLostPlace].links;
    ++lostCount;
}

void ZanDicLinkBase::Drop() noexcept {
    const std::uint32_t number = std::exchange(_Place, 0);
    Place& place = places[number];
    if (--place.links != 0) return;
    if (place.object != nullptr) std::exchange(place.object, nullptr)->_LinkPlace = 0;
    place.next = freePlace;
    freePlace = number;
}

std::uint32_t ZanDicLinkBase::PlaceOf(ZanDicObj& object) {
    if (object._LinkPlace == 0) {
        const std::uint32_t place = NewPlace();
        places[place] = {&object, 0, 0};
        object._LinkPlace = place;
    }
    return object._LinkPlace;
}

std::uint32_t ZanDicLinkBase::NewPlace() {
    if (freePlace != 0) return std::exchange(freePlace, places[freePlace].next);
    if (placeCount == capacity) {
        const std::uint32_t larger = std::max(kFirstChunk, capacity * 2);
        Place* const moved = new Place[larger];
        std::memcpy(moved, places, placeCount * sizeof(Place));
        if (places != firstPlaces) delete[] places;
        places = moved;
        capacity = larger;
    }
    return placeCount++;
}

void ZanDicLinkBase::Forget(std::uint32_t place) noexcept {
    places[place].object = nullptr;
    ++lostCount;
}
