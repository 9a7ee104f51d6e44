// The sheets of attribute blocks.
#include <fmt/format.h>

#include "Model.h"
#include "Views.h"

namespace tool {
namespace {

using Block = zandic::Handle<OXMIDicAttributeBlock>;
using Blocks = zandic::List<OXMIDicAttributeBlock>;

/// How a default block stands to its class, in JSON.
constexpr std::string_view kDefault = "default";

zandic::Handle<OXMIDicClass> ClassOf(OXMIDicAttributeBlock& block) {
    return zandic::Link(block, &OXMIDicAttributeBlock::GetClass);
}

/// \returns the default block of a class, if it is made.
Block DefaultBlockOf(OXMIDicClass& classElement, int create) {
    Block block;
    classElement.GetCBlockForAtt(nullptr, create, block.Out());
    return block;
}

/// A default block has a name of its own and a UUID that is another in every run: it is called by its class.
std::string BlockName(const View& view, OXMIDicAttributeBlock& block) {
    const auto owner = ClassOf(block);
    if (owner) {
        const Block ofOwner = DefaultBlockOf(*owner, 0);
        if (ofOwner && IsSame(*ofOwner, block)) return "default block of " + NameIn(view, *owner);
    }
    return NameIn(view, block);
}

std::string LinkName(const View& view, const Block& block) { return block ? BlockName(view, *block) : ""; }

std::vector<std::string> AttributesOf(const View& view, OXMIDicAttributeBlock& block) {
    return NamesIn(view, zandic::All<OXMIDicElementH>(block, &OXMIDicAttributeBlock::GetAttributes));
}

/// Father, root and attributes. A block that is its own root needs no word for it.
void ShowContent(const View& view, OXMIDicAttributeBlock& block) {
    view.sheet.Field("Father", LinkName(view, zandic::Link(block, &OXMIDicAttributeBlock::GetFather)));
    const Block root = zandic::Link(block, &OXMIDicAttributeBlock::GetRoot);
    if (root && !IsSame(*root, block)) view.sheet.Field("Root", BlockName(view, *root));
    const std::vector<std::string> attributes = AttributesOf(view, block);
    view.sheet.Field("Attributes", attributes.empty() ? "none" : Joined(attributes));
}

void ShowDeclared(const View& view, OXMIDicAttributeBlock& block, const std::string& hiddenBy) {
    view.sheet.Field("UUID", zandic::UuidText(zandic::Uuid(block)).View());
    view.sheet.Field("Hidden by", hiddenBy);
    ShowContent(view, block);
    ShowExtras(view, block);
}

/// \returns the visible block that hides \p block, being of the same root; empty when it is visible itself.
std::string HiddenBy(const View& view, const Blocks& visible, OXMIDicAttributeBlock& block) {
    const Block root = zandic::Link(block, &OXMIDicAttributeBlock::GetRoot);
    std::string hiding;
    for (OXMIDicAttributeBlock& each : visible) {
        if (IsSame(each, block)) return "";
        const Block other = zandic::Link(each, &OXMIDicAttributeBlock::GetRoot);
        if (root && other && IsSame(*root, *other)) hiding = NameIn(view, each);
    }
    return hiding;
}

bool Has(const Blocks& blocks, OXMIDicAttributeBlock& block) {
    for (OXMIDicAttributeBlock& each : blocks) {
        if (IsSame(each, block)) return true;
    }
    return false;
}

Blocks OwnOf(OXMIDicClass& classElement) {
    return zandic::All<OXMIDicAttributeBlock>(classElement, &OXMIDicClass::GetClassAttBlocks);
}

Blocks VisibleOf(OXMIDicClass& classElement) {
    return zandic::All<OXMIDicAttributeBlock>(classElement, &OXMIDicClass::GetAttBlocks);
}

}  // namespace

void ShowBlock(const View& view, OXMIDicAttributeBlock& block) {
    view.sheet.Title(TagOf(block), QualifiedName(block));
    const auto owner = ClassOf(block);
    ShowDeclared(view, block, "");
    view.sheet.Field("Declared in", owner ? NameIn(view, *owner) : "");
    ShowUsers(view, block);
}

void ShowBlocksOf(const View& view, OXMIDicClass& classElement) {
    view.sheet.Title(TagOf(classElement), QualifiedName(classElement));
    const Blocks own = OwnOf(classElement);
    const Blocks visible = VisibleOf(classElement);
    view.sheet.Field("Attribute blocks",
                     fmt::format("{}, {} visible",
                                 Counted(static_cast<std::size_t>(own.Size()), "own block", "own blocks"),
                                 visible.Size()));
    for (OXMIDicAttributeBlock& block : own) {
        view.sheet.Section(fmt::format("Own block {}", zandic::Name(block).View()));
        ShowDeclared(view, block, HiddenBy(view, visible, block));
    }
    for (OXMIDicAttributeBlock& block : visible) {
        if (Has(own, block)) continue;
        view.sheet.Section(fmt::format("Inherited block {}", NameIn(view, block)));
        ShowDeclared(view, block, "");
    }
    view.sheet.Section("Default block");
    if (const Block block = DefaultBlockOf(classElement, 1)) {
        ShowContent(view, *block);
    } else {
        view.sheet.Line("There is none: the class has no package.");
    }
}

namespace {

void WriteBlockJson(const View& view, OXMIDicAttributeBlock& block, std::string_view standing,
                    const std::string& hiddenBy, JsonWriter& json) {
    const auto owner = ClassOf(block);
    const bool isDefault = standing == kDefault;
    const Block root = zandic::Link(block, &OXMIDicAttributeBlock::GetRoot);
    json.BeginObject();
    json.TextOf("name", isDefault ? std::string() : std::string(zandic::Name(block).View()));
    json.TextOf("uuid",
                isDefault ? std::string() : std::string(zandic::UuidText(zandic::Uuid(block)).View()));
    json.TextOf("standing", standing);
    json.TextOf("class", owner ? QualifiedName(*owner) : "");
    json.TextOf("hiddenBy", hiddenBy);
    json.TextOf("father", LinkName(view, zandic::Link(block, &OXMIDicAttributeBlock::GetFather)));
    json.TextOf("root", LinkName(view, root));
    json.TextsOf("attributes", AttributesOf(view, block));
    json.EndObject();
}

}  // namespace

void WriteBlocksJson(const View& view, OXMIDicClass& classElement, JsonWriter& json) {
    const Blocks own = OwnOf(classElement);
    const Blocks visible = VisibleOf(classElement);
    json.BeginObject();
    json.TextOf("name", QualifiedName(classElement));
    json.Key("blocks");
    json.BeginArray();
    for (OXMIDicAttributeBlock& block : own) {
        WriteBlockJson(view, block, "own", HiddenBy(view, visible, block), json);
    }
    for (OXMIDicAttributeBlock& block : visible) {
        if (!Has(own, block)) WriteBlockJson(view, block, "inherited", "", json);
    }
    if (const Block block = DefaultBlockOf(classElement, 1)) WriteBlockJson(view, *block, kDefault, "", json);
    json.EndArray();
    json.EndObject();
}

void ShowVisibleBlocks(const View& view, OXMIDicClass& classElement) {
    std::vector<std::vector<std::string>> rows;
    const Blocks own = OwnOf(classElement);
    for (OXMIDicAttributeBlock& block : VisibleOf(classElement)) {
        const auto owner = ClassOf(block);
        rows.push_back(
            {std::string(zandic::Name(block).View()),
             owner && !Has(own, block) ? "from " + NameIn(view, *owner) : "",
             PlainNames(zandic::All<OXMIDicElementH>(block, &OXMIDicAttributeBlock::GetAttributes))});
    }
    if (rows.empty()) return;
    view.sheet.Section(fmt::format("Attribute blocks ({})", rows.size()));
    view.sheet.Rows(rows);
}

}  // namespace tool
