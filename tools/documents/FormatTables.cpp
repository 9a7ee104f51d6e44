/// Writes docs/format.md: the format of package documents as tables made from the vocabulary that the reader
/// uses. Ends with 1, after a line on standard error, when a word has no meaning or a meaning no word.
#include <algorithm>
#include <iostream>
#include <set>
#include <string>
#include <vector>

#include "FormatMeanings.h"
#include "ZANDicTags.h"

using namespace ZANDicFormat;
using namespace documents;

namespace {

constexpr std::string_view kHead = R"(# Package documents

*Made by `format_tables` (`tools/documents`) from `ZANDicFormat`, the words that the reader uses; `scripts/docs`
makes it again.*

A document is well-formed XML in UTF-8, UTF-16 or ISO-8859-1. A DOCTYPE is skipped and defines nothing. Names of
tags and attributes and the words of values count exactly, case included.

- **Identity**: an element has a `Name` and a `Uuid`. A UUID is 32 hexadecimal digits of either case, with or
  without dashes between bytes; a byte whose digits are wrong reads as `FF`, so a mistyped UUID is another UUID.
- **Flags** are true for `Yes`; anything else is no.
- **Numbers** are decimal, with a sign or without. Text behind the digits is passed over, and a number that does
  not fit becomes the nearest that does, each with a warning; a value without digits is passed over.
- **References** name objects by UUID. They are resolved once every element of the document is read, so they may
  point forward, and into the packages of `UseNames` and `UseScopes`. What they name must be there, of the right
  kind and in the same domain.
- **Free attributes**: an attribute that a tag does not know is kept on the element under its name, and saved
  with it. Relationships and inverses have none.
- **Unknown tags** are passed over with a warning.
- **An attribute given twice** in one tag is allowed: the last counts, but for `Name` and `Uuid`, and for every
  attribute of `Package`, `Relationship` and `Inverse`, of which the first does.

A fault ends the load and leaves nothing of the package behind, unless it is said to be a warning.
)";

constexpr std::string_view kTuningHead = R"(
## Tuning documents

The document `NAME.tuning` groups attributes into blocks. It is read after the package `NAME` is whole. Its faults
are warnings: the package stays loaded, without the blocks.
)";

bool isComplete = true;

void Complain(std::string_view what, std::string_view name) {
    std::cerr << "format_tables: " << what << ": " << name << '\n';
    isComplete = false;
}

/// The meanings of one description, and which of them were used.
class Meanings {
public:
    Meanings(std::span<const TagMeaning> tags, std::span<const AttributeMeaning> attributes,
             const Meanings* general)
        : _General(general), _TAGS(tags), _ATTRIBUTES(attributes) {}

    std::string_view OfTag(std::string_view tagName) const {
        for (const TagMeaning& row : _TAGS) {
            if (row.tag != tagName) continue;
            _USED.insert(&row);
            return row.meaning;
        }
        if (_General != nullptr) return _General->OfTag(tagName);
        Complain("a tag without a meaning", tagName);
        return {};
    }

    std::string_view OfAttribute(std::string_view tagName, std::string_view name) const {
        for (const std::string_view wanted : {tagName, std::string_view()}) {
            for (const AttributeMeaning& row : _ATTRIBUTES) {
                if (row.attribute != name || row.tag != wanted) continue;
                _USED.insert(&row);
                return row.meaning;
            }
        }
        if (_General != nullptr) return _General->OfAttribute(tagName, name);
        Complain("an attribute without a meaning", std::string(tagName).append(".").append(name));
        return {};
    }

    void ComplainOfUnused() const {
        for (const TagMeaning& row : _TAGS) {
            if (!_USED.contains(&row)) Complain("a meaning without a tag", row.tag);
        }
        for (const AttributeMeaning& row : _ATTRIBUTES) {
            if (!_USED.contains(&row)) Complain("a meaning without an attribute", row.attribute);
        }
    }

private:
    const Meanings* _General;  ///< where this has none; may be null
    std::span<const TagMeaning> _TAGS;
    std::span<const AttributeMeaning> _ATTRIBUTES;
    mutable std::set<const void*> _USED;
};

std::string Code(std::string_view text) { return std::string("`").append(text).append("`"); }

std::string Joined(const std::vector<std::string>& items) {
    std::string text;
    for (const std::string& item : items) text.append(text.empty() ? "" : ", ").append(item);
    return text;
}

std::string WordsOf(std::span<const CodeWord> words) {
    std::vector<std::string> items;
    for (const CodeWord& row : words) items.push_back(Code(row.word));
    return Joined(items);
}

std::string FormOf(const AttributeRow& row) {
    switch (row.form) {
        case AttributeForm::Text:
            return "text";
        case AttributeForm::Flag:
            return "flag";
        case AttributeForm::Integer:
            return "number";
        case AttributeForm::Word:
            return WordsOf(row.words);
        case AttributeForm::Uuid:
            return "UUID";
        case AttributeForm::Reference:
            return row.words.empty() ? "reference" : "reference, or " + WordsOf(row.words);
        case AttributeForm::References:
            return "references, separated by blanks";
        case AttributeForm::Names:
            return "names, separated by blanks";
        case AttributeForm::Repeated:
            return "accepted, without effect";
    }
    return {};
}

/// Every tag that may stand around \p tagName.
std::string Owners(std::span<const TagRow> tags, std::string_view tagName) {
    std::vector<std::string> owners;
    for (const TagRow& row : tags) {
        if (std::find(row.children.begin(), row.children.end(), tagName) != row.children.end()) {
            owners.push_back(Code(row.tag));
        }
    }
    return Joined(owners);
}

/// Tables below this size are shown again rather than referred to.
constexpr std::size_t kLongTable = 6;

/// The tag whose table shows the attributes of \p row: the first with the same long list, else \p row.
const TagRow& FirstLike(std::span<const TagRow> tags, const TagRow& row) {
    if (row.attributes.size() < kLongTable) return row;
    const auto hasTheSame = [&row](const TagRow& other) {
        return other.attributes.data() == row.attributes.data();
    };
    return *std::find_if(tags.begin(), tags.end(), hasTheSame);
}

void WriteTag(std::span<const TagRow> tags, const TagRow& row, const Meanings& meanings) {
    std::cout << "\n### " << row.tag << "\n\n" << meanings.OfTag(row.tag) << '\n';
    const std::string owners = Owners(tags, row.tag);
    if (!owners.empty()) std::cout << "\nStands in " << owners << ".";
    if (!row.children.empty()) {
        std::vector<std::string> children;
        for (const std::string_view child : row.children) children.push_back(Code(child));
        std::cout << (owners.empty() ? "\nHolds " : " Holds ") << Joined(children) << ".";
    }
    std::cout << '\n';
    const TagRow& like = FirstLike(tags, row);
    if (&like != &row) std::cout << "\nAttributes: those of " << Code(like.tag) << ".\n";
    if (&like != &row || row.attributes.empty()) return;
    std::cout << "\n| attribute | must be there | value | meaning |\n|---|---|---|---|\n";
    for (const AttributeRow& attribute : row.attributes) {
        std::cout << "| " << Code(attribute.name) << " | " << (attribute.mandatory ? "yes" : "") << " | "
                  << FormOf(attribute) << " | " << meanings.OfAttribute(row.tag, attribute.name) << " |\n";
    }
}

void WriteFiles() {
    std::cout << "\n## Files\n\nA document is called `PACKAGE.WORD`, with one of the words\n\n"
                 "| word | code | holds |\n|---|---|---|\n";
    const std::span<const ContentMeaning> meanings = ContentMeanings();
    for (const CodeWord& row : kContentWords) {
        const auto meaning =
            std::find_if(meanings.begin(), meanings.end(),
                         [&row](const ContentMeaning& each) { return each.word == row.word; });
        if (meaning == meanings.end()) {
            Complain("a content word without a meaning", row.word);
            continue;
        }
        std::cout << "| " << Code(row.word) << " | " << row.code << " | " << meaning->meaning << " |\n";
    }
}

void WriteWords() {
    std::cout
        << "\n## Words and their codes\n\nThe code is what the model keeps: the value of the enumeration in "
           "`OXMDicTypes.h`.\n\n| list | words | any other word |\n|---|---|---|\n";
    for (const OtherWords& list : OtherWordMeanings()) {
        std::vector<std::string> items;
        for (const CodeWord& row : list.words)
            items.push_back(Code(row.word).append(" ").append(std::to_string(row.code)));
        std::cout << "| " << list.title << " | " << Joined(items) << " | " << list.other << " |\n";
    }
    std::vector<std::string> domains;
    for (const std::string_view domain : kDomains) domains.push_back(Code(domain));
    std::cout << "| Domain | " << Joined(domains) << " | is a fault |\n";
}

/// Each list of words that an attribute has must be among those that are written.
void CheckWords(std::span<const TagRow> tags) {
    for (const TagRow& tagRow : tags) {
        for (const AttributeRow& attribute : tagRow.attributes) {
            const auto isItsList = [&attribute](const OtherWords& list) {
                return list.words.data() == attribute.words.data();
            };
            const std::span<const OtherWords> lists = OtherWordMeanings();
            if (!attribute.words.empty() && std::none_of(lists.begin(), lists.end(), isItsList)) {
                Complain("a list of words that is not shown, of", attribute.name);
            }
        }
    }
}

}  // namespace

int main() {
    const Meanings general(TagMeanings(), AttributeMeanings(), nullptr);
    const Meanings tuning(TuningTagMeanings(), TuningAttributeMeanings(), &general);

    std::cout << kHead;
    WriteFiles();
    std::cout << "\n## Tags\n";
    for (const TagRow& row : kTags) WriteTag(kTags, row, general);
    std::cout << kTuningHead;
    for (const TagRow& row : kTuningTags) WriteTag(kTuningTags, row, tuning);
    WriteWords();

    general.ComplainOfUnused();
    tuning.ComplainOfUnused();
    CheckWords(kTags);
    CheckWords(kTuningTags);
    return isComplete && std::cout.flush() ? 0 : 1;
}
