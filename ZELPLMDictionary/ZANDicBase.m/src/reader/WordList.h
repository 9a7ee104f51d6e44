/// Lists inside one attribute value: items separated by blanks.
#ifndef WORD_LIST_H
#define WORD_LIST_H

#include <string_view>

/// Walks the items of a value; a run of blanks separates, and no item is empty.
class WordList {
public:
    explicit WordList(std::string_view value) : _Rest(value) {}

    /// \returns the next item; empty when there is none left.
    std::string_view Next() {
        const std::size_t start = _Rest.find_first_not_of(' ');
        if (start == std::string_view::npos) return _Rest = {};
        _Rest.remove_prefix(start);
        const std::string_view item = _Rest.substr(0, _Rest.find(' '));
        _Rest.remove_prefix(item.size());
        return item;
    }

private:
    std::string_view _Rest;
};

#endif
