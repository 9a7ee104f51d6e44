#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include "AttributeText.h"
#include "Command.h"
#include "Glob.h"
#include "JsonWriter.h"
#include "Model.h"
#include "Nearest.h"
#include "OXMIDicParameter.h"
#include "Objects.h"
#include "References.h"
#include "Sheet.h"
#include "Style.h"
#include "Targets.h"
#include "Views.h"

namespace tool {
namespace {

constexpr std::size_t kFewestDigits = 4;  // of the beginning of a UUID; three may well be a word
constexpr std::size_t kWidestName = 56;   // of a column; longer names push the rest to the right

/// A word of --kind that stands for several tags.
constexpr std::string_view kAttribute = "Attribute";

char Upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

std::string UpperText(std::string_view text) {
    std::string upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(), Upper);
    return upper;
}

/// \returns the digits, in capitals, where \p pattern may be the beginning of a UUID; else nothing.
std::string UuidDigits(std::string_view pattern) {
    std::string digits;
    for (const char each : pattern) {
        const char c = Upper(each);
        if ((c >= '0' && c <= '9') || (c >= 'A' && c <= 'F')) {
            digits += c;
        } else if (c != '-') {
            return "";
        }
    }
    return digits.size() >= kFewestDigits ? digits : "";
}

/// What is asked for.
struct Query {
    std::optional<Glob> name;
    bool isQualified = false;  ///< the name is one with owners
    std::string uuid;          ///< digits of its beginning
    std::string kind;          ///< a tag; empty: any
    std::optional<Glob> type;
    bool refers = false;                              ///< only what refers to a certain object
    UuidMap<std::vector<ReferenceKind>> referrers{};  ///< by UUID: in which ways it refers
};

bool BeginsWithDigits(OXMIDicElementH& object, const std::string& digits) {
    std::string own(zandic::UuidText(zandic::Uuid(object)).View());
    std::erase(own, '-');
    return UpperText(own).starts_with(digits);
}

bool MatchesName(OXMIDicElementH& object, const Query& query) {
    if (!query.name) return true;
    if (!query.uuid.empty() && BeginsWithDigits(object, query.uuid)) return true;
    return query.name->Matches(query.isQualified ? QualifiedName(object)
                                                 : std::string(zandic::Name(object).View()));
}

bool MatchesKind(OXMIDicElementH& object, const Query& query) {
    if (query.kind.empty()) return true;
    return query.kind == kAttribute ? IsAttribute(object) : query.kind == TagOf(object);
}

zandic::Handle<OXMIDicElement> TypeOfAny(OXMIDicElementH& object) {
    if (IsAttribute(object)) return zandic::TypeOf(*zandic::As<OXMIDicAttribute>(object));
    const auto parameter = zandic::As<OXMIDicParameter>(object);
    return parameter ? zandic::TypeOf(*parameter) : zandic::Handle<OXMIDicElement>();
}

bool MatchesType(OXMIDicElementH& object, const Query& query) {
    if (!query.type) return true;
    const auto type = TypeOfAny(object);
    return type &&
           (query.type->Matches(zandic::Name(*type).View()) || query.type->Matches(QualifiedName(*type)));
}

/// One object that was found.
struct Hit {
    zandic::Handle<OXMIDicElementH> object;
    std::string name;
    std::vector<ReferenceKind> ways;  ///< in which it refers to what was asked for
};

/// Adds the object where it fits.
void Look(OXMIDicElementH& object, const Query& query, std::vector<Hit>& hits) {
    if (!MatchesKind(object, query)) return;
    std::vector<ReferenceKind> ways;
    if (query.refers) {
        const auto found = query.referrers.find(zandic::Uuid(object));
        if (found == query.referrers.end()) return;
        ways = found->second;
    }
    if (!MatchesName(object, query) || !MatchesType(object, query)) return;
    hits.push_back({zandic::As<OXMIDicElementH>(object), QualifiedName(object), std::move(ways)});
}

/// \returns the kind as the documents write it; empty, after a word to the user, when there is none.
std::string KindNamed(Session& session, const std::string& kind) {
    Nearest nearest(kind);
    std::string found;
    const auto look = [&](std::string_view tag) {
        nearest.Add(tag);
        if (UpperText(tag) == UpperText(kind)) found = tag;
    };
    look(kAttribute);
    for (const ZANDicFormat::CodeWord& row : ZANDicFormat::kElementTags) look(row.word);
    if (found.empty()) {
        session.RejectUse("", fmt::format("--kind cannot be '{}'{}", kind, nearest.Question()));
    }
    return found;
}

/// Notes who refers to what \p name names. \returns whether there is such an object.
bool FillReferrers(Session& session, const Options& options, const std::string& name, Query& query) {
    Options ofName = options;
    ofName.names = {name};
    const std::vector<AskedObject> targets = Targets(session, ofName).Objects();
    if (targets.empty()) return false;
    const bool isAnyAttribute = std::any_of(
        targets.begin(), targets.end(), [](const AskedObject& each) { return IsAttribute(*each.object); });
    if (isAnyAttribute) AskForAllAttributes(session.Dictionary());
    UuidMap<bool> wanted;
    for (const AskedObject& each : targets) wanted[zandic::Uuid(*each.object)] = true;
    ForEachReference(session.Dictionary(), [&](const Reference& reference) {
        if (!wanted.contains(zandic::Uuid(reference.to))) return;
        std::vector<ReferenceKind>& ways = query.referrers[zandic::Uuid(reference.from)];
        if (std::find(ways.begin(), ways.end(), reference.kind) == ways.end()) {
            ways.push_back(reference.kind);
        }
    });
    query.refers = true;
    return true;
}

std::string NoteOf(const View& view, const Hit& hit) {
    std::vector<std::string> parts;
    for (const ReferenceKind way : hit.ways) parts.emplace_back(ReferencePhrase(way));
    if (IsAttribute(*hit.object)) {
        const auto attribute = zandic::As<OXMIDicAttribute>(hit.object);
        parts.push_back(fmt::format("{} {}", AttributeTypeText(view, *attribute), ValuesText(*attribute)));
    } else if (const auto type = TypeOfAny(*hit.object)) {
        parts.push_back(QualifiedName(*type));
    }
    if (const auto element = zandic::As<OXMIDicElement>(hit.object)) parts.push_back(QuotedAlias(*element));
    std::erase(parts, "");
    return Joined(parts);
}

/// One line a hit, whatever its length: other programs read them.
void WriteLines(const Session& session, const std::vector<Hit>& hits, Output& output) {
    Sheet sheet(output);
    const View view{session.Dictionary(), sheet, ""};
    std::size_t nameWidth = 0;
    std::size_t kindWidth = 0;
    for (const Hit& hit : hits) {
        nameWidth = std::max(nameWidth, std::min(WidthOf(Printable(hit.name)), kWidestName));
        kindWidth = std::max(kindWidth, TagOf(*hit.object).size());
    }
    for (const Hit& hit : hits) {
        const std::string name = Printable(hit.name);
        const std::size_t used = WidthOf(name);
        const std::string note = Printable(NoteOf(view, hit));
        std::string line = Style::Output().Paint(Role::Name, name) +
                           std::string(used < nameWidth ? nameWidth - used : 0, ' ') + "  " +
                           std::string(TagOf(*hit.object));
        if (!note.empty()) line += std::string(kindWidth - TagOf(*hit.object).size(), ' ') + "  " + note;
        output.Write(line + "\n");
    }
}

void WriteJson(const std::vector<Hit>& hits, Output& output) {
    JsonWriter json(output);
    json.BeginObject();
    json.Key("hits");
    json.BeginArray();
    for (const Hit& hit : hits) {
        const auto type = TypeOfAny(*hit.object);
        json.BeginObject();
        json.Key("name");
        json.Text(hit.name);
        json.Key("kind");
        json.Text(TagOf(*hit.object));
        json.Key("uuid");
        json.Text(zandic::UuidText(zandic::Uuid(*hit.object)).View());
        json.TextOf("type", type ? QualifiedName(*type) : "");
        json.Key("refersAs");
        json.BeginArray();
        for (const ReferenceKind way : hit.ways) json.Text(ReferenceWord(way));
        json.EndArray();
        json.EndObject();
    }
    json.EndArray();
    json.EndObject();
    json.End();
}

/// Tells that nothing was found, with the names that are near.
void TellNone(Session& session, const std::vector<AskedPackage>& packages, const Options& options) {
    const std::string pattern = options.names.empty() ? "" : options.names.front();
    std::string question;
    if (!pattern.empty() && !Glob::IsPattern(pattern)) {
        Nearest nearest(pattern);
        for (const AskedPackage& each : packages) {
            if (!each.package) continue;
            ForEachObjectOf(*each.package,
                            [&](OXMIDicElementH& object) { nearest.Add(zandic::Name(object).View()); });
        }
        question = nearest.Question();
    }
    session.Refuse(pattern, "nothing found" + question);
}

}  // namespace

void RunFind(Session& session, const Options& options, Output& output) {
    Query query;
    if (!options.names.empty()) {
        query.name.emplace(options.names.front());
        query.isQualified = options.names.front().find(kNameSeparator) != std::string::npos;
        query.uuid = UuidDigits(options.names.front());
    }
    if (options.type) query.type.emplace(*options.type);
    if (options.kind) {
        query.kind = KindNamed(session, *options.kind);
        if (query.kind.empty()) return;
    }

    Options everything = options;
    everything.names.clear();
    const std::vector<AskedPackage> packages = Targets(session, everything).Packages();
    if (options.refersTo && !FillReferrers(session, options, *options.refersTo, query)) return;

    std::vector<Hit> hits;
    const auto look = [&](OXMIDicElementH& object) { Look(object, query, hits); };
    for (const AskedPackage& each : packages) {
        if (!each.package) continue;
        look(*each.package);
        ForEachObjectOf(*each.package, look);
    }
    if (options.json) {
        WriteJson(hits, output);
    } else {
        WriteLines(session, hits, output);
    }
    if (hits.empty()) TellNone(session, packages, options);
}

}  // namespace tool
