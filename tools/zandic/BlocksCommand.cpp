#include <fmt/format.h>

#include <optional>
#include <string>
#include <vector>

#include "Command.h"
#include "Find.h"
#include "Model.h"
#include "Views.h"

namespace tool {
namespace {

using Class = zandic::Handle<OXMIDicClass>;

/// What one NAME asks for.
struct Request {
    zandic::Handle<OXMIDicPackage> package;
    std::vector<Class> classes;  ///< with blocks
    bool isWhole;                ///< all of the package
};

bool IsClass(OXMIDicElement& element) {
    const OXMDicTYPE kind = zandic::Kind(element);
    return kind == OXMDicTYPE_Class || kind == OXMDicTYPE_Extension;
}

/// \returns why \p target must not be asked for; none when it may.
std::optional<std::string> WrongSubject(const Target& target, std::string_view path) {
    if (target.uuid) return "blocks are shown by name: give PACKAGE or PACKAGE::CLASS";
    if (!target.member.empty()) return "a class has blocks, a member has none: give PACKAGE::CLASS";
    return WrongTarget(target, path);
}

Request Find(Session& session, const Target& target) {
    Request request{FindPackage(session, target), {}, target.element.empty()};
    if (!request.package || request.isWhole) return request;
    const auto element = FindElement(session, *request.package, target);
    if (element && IsClass(*element)) {
        request.classes.push_back(zandic::As<OXMIDicClass>(element));
        return request;
    }
    if (element) {
        session.Refuse(target.text, fmt::format("{} {} is no class and has no attribute blocks",
                                                TagOf(*element), QualifiedName(*element)));
    }
    request.package.Reset();
    return request;
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

}  // namespace

void RunBlocks(Session& session, const Options& options, Output& output) {
    // Everything is loaded before the first is shown: another package may tune the classes of this one.
    std::vector<Request> requests;
    for (const std::string& name : options.names) {
        const Target target = ParseTarget(name);
        if (auto wrong = WrongSubject(target, session.Path())) {
            session.RejectUse(name, *wrong);
            continue;
        }
        Request request = Find(session, target);
        if (request.package) requests.push_back(std::move(request));
    }
    Sheet sheet(output);
    for (const Request& request : requests) {
        if (&request != &requests.front()) sheet.Separate();
        const View view{session.Dictionary(), sheet, std::string(zandic::Name(*request.package).View())};
        if (request.isWhole) ShowPackageBlocks(view, *request.package);
        for (const Class& each : request.classes) ShowBlocksOf(view, *each);
    }
}

}  // namespace tool
