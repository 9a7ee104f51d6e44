#include <fmt/format.h>

#include <string>
#include <vector>

#include "Command.h"
#include "Model.h"
#include "Targets.h"
#include "Views.h"

namespace tool {
namespace {

bool IsClass(OXMIDicElementH& element) {
    const OXMDicTYPE kind = zandic::Kind(element);
    return kind == OXMDicTYPE_Class || kind == OXMDicTYPE_Extension;
}

/// Shows the classes of a package that see a block, and names the others.
void ShowPackageBlocks(const View& view, OXMIDicPackage& package) {
    std::vector<std::string> without;
    int shown = 0;
    for (OXMIDicClass& each : zandic::All<OXMIDicClass>(package, &OXMIDicPackage::GetClasses)) {
        if (!zandic::Flag(each, &OXMIDicClass::HasAttBlocks)) {
            without.push_back(NameIn(view, each));
            continue;
        }
        if (shown++ > 0) view.sheet.Separate();
        ShowBlocksOf(view, each);
    }
    if (without.empty() && shown > 0) return;
    if (shown > 0) view.sheet.Separate();
    view.sheet.Title(TagOf(package), zandic::Name(package).View());
    view.sheet.Field("Without blocks", without.empty() ? "it has no classes" : Joined(without));
}

/// The classes that are asked for, by themselves or with their package.
void WriteJson(const Session& session, const std::vector<AskedObject>& objects, Output& output) {
    Sheet sheet(output);
    const View view{session.Dictionary(), sheet, ""};
    std::vector<std::string> without;
    JsonWriter json(output);
    json.BeginObject();
    json.Key("classes");
    json.BeginArray();
    for (const AskedObject& each : objects) {
        const auto package = zandic::As<OXMIDicPackage>(each.object);
        if (!package) {
            WriteBlocksJson(view, *zandic::As<OXMIDicClass>(each.object), json);
            continue;
        }
        for (OXMIDicClass& member : zandic::Classes(*package)) {
            if (zandic::Flag(member, &OXMIDicClass::HasAttBlocks)) {
                WriteBlocksJson(view, member, json);
            } else {
                without.push_back(QualifiedName(member));
            }
        }
    }
    json.EndArray();
    json.TextsOf("withoutBlocks", without);
    json.EndObject();
    json.End();
}

}  // namespace

void RunBlocks(Session& session, const Options& options, Output& output) {
    std::vector<AskedObject> objects = Targets(session, options).Objects();
    std::erase_if(objects, [&session](const AskedObject& each) {
        if (zandic::Kind(*each.object) == OXMDicTYPE_Package || IsClass(*each.object)) return false;
        session.Refuse(each.asked, fmt::format("{} {} is no class and has no attribute blocks",
                                               TagOf(*each.object), QualifiedName(*each.object)));
        return true;
    });
    if (options.json) return WriteJson(session, objects, output);
    Sheet sheet(output);
    for (const AskedObject& each : objects) {
        if (&each != &objects.front()) sheet.Separate();
        const View view{session.Dictionary(), sheet, PackageNameOf(*each.object)};
        if (const auto package = zandic::As<OXMIDicPackage>(each.object)) {
            ShowPackageBlocks(view, *package);
        } else {
            ShowBlocksOf(view, *zandic::As<OXMIDicClass>(each.object));
        }
    }
}

}  // namespace tool
