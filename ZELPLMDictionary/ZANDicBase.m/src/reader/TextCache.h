/// Texts that documents repeat, shared instead of copied.
#ifndef TEXT_CACHE_H
#define TEXT_CACHE_H

#include <memory>
#include <string_view>
#include <utility>

#include "ZELHash.h"
#include "ZELString.h"

/// Gives strings for the views of a document; a text that is given often is shared. A text is kept when it
/// comes twice before another for its place: most names of a document come once, and to keep each of them for
/// a while would cost more than to make it. Bounded: a text that is kept takes the place of an older one. One
/// thread.
class TextCache {
public:
    ZELString Text(std::string_view view) {
        if (view.empty() || view.size() > kLongest) return ZELString(view);
        const std::uint32_t key = ZELHashText(view);
        Place& place = _PLACES[key % kPlaces];
        if (place.key == key && place.text.View() == view) return place.text;
        ZELString text(view, key);
        if (std::exchange(place.lastKey, key) == key) {
            place.text = text;
            place.key = key;
        }
        return text;
    }

private:
    static constexpr std::size_t kPlaces = 1024;
    static constexpr std::size_t kLongest = 64;

    struct Place {
        std::uint32_t lastKey = 0;  ///< of the text that came last
        std::uint32_t key = 0;      ///< of the text that is kept
        ZELString text;
    };

    std::unique_ptr<Place[]> _PLACES = std::make_unique<Place[]>(kPlaces);
};

#endif
