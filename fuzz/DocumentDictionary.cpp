/// Writes the words of package documents as a libFuzzer dictionary to standard output.
#include <cstdio>
#include <set>
#include <string_view>

#include "ZANDicTags.h"

using namespace ZANDicFormat;

int main() {
    std::set<std::string_view> words(std::begin(kDomains), std::end(kDomains));
    words.insert({value::kYes, value::kNo, value::kAnyObject});
    for (const TagRow& tagRow : kTags) {
        words.insert(tagRow.tag);
        for (const AttributeRow& attribute : tagRow.attributes) {
            words.insert(attribute.name);
            for (const CodeWord& row : attribute.words) words.insert(row.word);
        }
    }
    for (const CodeWord& row : kContentWords) words.insert(row.word);
    for (const std::string_view word : words) {
        std::printf("\"%.*s\"\n", static_cast<int>(word.size()), word.data());
    }
    return 0;
}
