#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "Command.h"
#include "DumpJson.h"
#include "JsonWriter.h"
#include "Model.h"
#include "Objects.h"
#include "References.h"
#include "Targets.h"
#include "Views.h"

namespace tool {
namespace {

/// Somebody who refers to an object that is shown.
struct User {
    std::string name;
    std::string_view kind;
    ReferenceKind way;
};

/// \returns the users of each object, in the order of the objects, by one walk.
std::vector<std::vector<User>> UsersOf(const zandic::Dictionary& dictionary,
                                       const std::vector<AskedObject>& objects) {
    UuidMap<std::vector<std::size_t>> places;
    for (std::size_t index = 0; index < objects.size(); ++index) {
        places[zandic::Uuid(*objects[index].object)].push_back(index);
    }
    std::vector<std::vector<User>> users(objects.size());
    ForEachReference(dictionary, [&](const Reference& reference) {
        const auto found = places.find(zandic::Uuid(reference.to));
        if (found == places.end()) return;
        for (const std::size_t index : found->second) {
            users[index].push_back({QualifiedName(reference.from), TagOf(reference.from), reference.kind});
        }
    });
    return users;
}

void WriteObject(const AskedObject& asked, const std::vector<User>& users, JsonWriter& json) {
    json.BeginObject();
    json.Key("asked");
    json.Text(asked.asked);
    json.Key("name");
    json.Text(QualifiedName(*asked.object));
    json.Key("kind");
    json.Text(TagOf(*asked.object));
    json.Key("object");
    DumpObject(json, *asked.object);
    json.Key("referredToBy");
    json.BeginArray();
    for (const User& user : users) {
        json.BeginObject();
        json.Key("name");
        json.Text(user.name);
        json.Key("kind");
        json.Text(user.kind);
        json.Key("as");
        json.Text(ReferenceWord(user.way));
        json.EndObject();
    }
    json.EndArray();
    json.EndObject();
}

void WriteJson(const zandic::Dictionary& dictionary, const std::vector<AskedObject>& objects,
               Output& output) {
    const std::vector<std::vector<User>> users = UsersOf(dictionary, objects);
    JsonWriter json(output);
    json.BeginObject();
    json.Key("objects");
    json.BeginArray();
    for (std::size_t index = 0; index < objects.size(); ++index) {
        WriteObject(objects[index], users[index], json);
    }
    json.EndArray();
    json.EndObject();
    json.End();
}

}  // namespace

void RunShow(Session& session, const Options& options, Output& output) {
    const std::vector<AskedObject> objects = Targets(session, options).Objects();
    AskForAllAttributes(session.Dictionary());
    if (options.json) return WriteJson(session.Dictionary(), objects, output);
    for (const AskedObject& each : objects) {
        if (&each != &objects.front()) output.Write("\n");
        ShowObject(session.Dictionary(), *each.object, output);
    }
}

}  // namespace tool
