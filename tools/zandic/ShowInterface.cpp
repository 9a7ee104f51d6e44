// The sheets of interfaces, methods and parameters.
#include <fmt/format.h>

#include "Model.h"
#include "Views.h"

namespace tool {
namespace {

using Rows = std::vector<std::vector<std::string>>;

std::string KindText(OXMIDicParameter& parameter) {
    return std::string(WordOf(parameter, &OXMIDicParameter::GetKind, ZANDicFormat::kKindWords));
}

std::string TypeText(const View& view, OXMIDicParameter& parameter) {
    const auto type = zandic::TypeOf(parameter);
    return type ? NameIn(view, *type) : "?";
}

zandic::List<OXMIDicParameter> ParametersOf(OXMIDicMethod& method) {
    return zandic::All<OXMIDicParameter>(method, &OXMIDicMethod::GetParameters);
}

/// \returns the parameters in one line: "In part: BomPart, Return: Boolean".
std::string Signature(const View& view, OXMIDicMethod& method) {
    std::vector<std::string> parts;
    for (OXMIDicParameter& parameter : ParametersOf(method)) {
        const std::string kind = KindText(parameter);
        parts.push_back(fmt::format("{}{}{}: {}", kind, kind.empty() ? "" : " ",
                                    zandic::Name(parameter).View(), TypeText(view, parameter)));
    }
    return Joined(parts);
}

void ShowMethods(const View& view, OXMIDicInterface& interface, const std::string& heading) {
    Rows rows;
    for (OXMIDicMethod& method : zandic::All<OXMIDicMethod>(interface, &OXMIDicInterface::GetMethods)) {
        rows.push_back(
            {std::string(zandic::Name(method).View()), QuotedAlias(method), Signature(view, method)});
    }
    if (rows.empty()) return;
    view.sheet.Section(fmt::format("{} ({})", heading, rows.size()));
    view.sheet.Rows(rows);
}

}  // namespace

void ShowInterface(const View& view, OXMIDicInterface& interface) {
    Sheet& sheet = view.sheet;
    const auto supers = zandic::All<OXMIDicInterface>(interface, &OXMIDicInterface::GetSuperInterfaces);
    const auto asClass = zandic::As<OXMIDicClass>(interface);
    sheet.Title(TagOf(interface), QualifiedName(interface));
    ShowIdentity(view, interface);
    sheet.Field("Super interfaces", NamesIn(view, supers));
    sheet.Field("Subinterfaces",
                NamesIn(view, zandic::All<OXMIDicElementH>(*asClass, &OXMIDicClass::GetSubClasses)));
    ShowExtras(view, interface);
    ShowMethods(view, interface, "Own methods");
    for (OXMIDicInterface& above : supers) {
        ShowMethods(view, above, "Methods inherited from " + NameIn(view, above));
    }
    ShowUsers(view, interface);
}

void ShowMethod(const View& view, OXMIDicMethod& method) {
    ShowOwned(view, method);
    ShowExtras(view, method);
    Rows rows;
    for (OXMIDicParameter& parameter : ParametersOf(method)) {
        const std::string value = TextOf(parameter, &OXMIDicParameter::GetDefault);
        std::vector<std::string> notes{value.empty() ? "" : "default " + value, QuotedAlias(parameter)};
        std::erase(notes, "");
        rows.push_back({KindText(parameter), std::string(zandic::Name(parameter).View()),
                        TypeText(view, parameter), Joined(notes)});
    }
    view.sheet.Section(fmt::format("Parameters ({})", rows.size()));
    view.sheet.Rows(rows);
    ShowUsers(view, method);
}

void ShowParameter(const View& view, OXMIDicParameter& parameter) {
    ShowOwned(view, parameter);
    view.sheet.Field("Kind", KindText(parameter));
    view.sheet.Field("Type", TypeText(view, parameter));
    view.sheet.Field("Default", TextOf(parameter, &OXMIDicParameter::GetDefault));
    ShowExtras(view, parameter);
    ShowUsers(view, parameter);
}

}  // namespace tool
