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
        ZELString& place = _TEXTS[ZELHashText(view) % kPlaces];
        if (place.View() != view) place = ZELString(view);
        return place;
    }

private:
    static constexpr std::size_t kPlaces = 1024;
    static constexpr std::size_t kLongest = 64;

    std::unique_ptr<ZELString[]> _TEXTS = std::make_unique<ZELString[]>(kPlaces);
};

#endif
