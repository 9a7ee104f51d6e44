/// Texts that documents repeat, shared instead of copied.
#ifndef TEXT_CACHE_H
#define TEXT_CACHE_H

#include <memory>
#include <string_view>

#include "ZELHash.h"
#include "ZELString.h"

/// Gives strings for the views of a document; a text that was given lately is shared. Bounded: a newer
/// text takes the place of an older one. One thread.
class TextCache {
public:
    ZELString Text(std::string_view view) {
        if (view.empty() || view.size() > kLongest) return ZELString(view);
        const std::uint32_t key = ZELHashText(view);
        Place& place = _PLACES[key % kPlaces];
        // The key first: the older text is mostly another one, and far away by now.
        if (place.key != key || place.text.View() != view) {
            place.text = ZELString(view, key);
            place.key = key;
        }
        return place.text;
    }

private:
    static constexpr std::size_t kPlaces = 1024;
    static constexpr std::size_t kLongest = 64;

    struct Place {
        std::uint32_t key = 0;
        ZELString text;
    };

    std::unique_ptr<Place[]> _PLACES = std::make_unique<Place[]>(kPlaces);
};

#endif
