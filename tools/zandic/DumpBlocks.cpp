// The attribute blocks of a class.
#include "DumpFields.h"
#include "OXMIDicAttributeBlock.h"

namespace tool::dump {
namespace {

template <auto kGetter>
void UuidOfLink(JsonWriter& json, OXMIDicAttributeBlock& block) {
    if (const auto linked = zandic::Link(block, kGetter)) {
        WriteUuid(json, *linked);
    } else {
        json.Null();
    }
}

constexpr Field<OXMIDicAttributeBlock> kBlockFields[] = {
    {"name", Of<WriteName>},
    {"uuid", Of<WriteUuid>},
    {"father", UuidOfLink<&OXMIDicAttributeBlock::GetFather>},
    {"root", UuidOfLink<&OXMIDicAttributeBlock::GetRoot>},
    {"attributes", Links<&OXMIDicAttributeBlock::GetAttributes>},
};

}  // namespace

void WriteOwnBlocks(JsonWriter& json, OXMIDicClass& classElement) {
    Members<&OXMIDicClass::GetClassAttBlocks, kBlockFields, OXMIDicAttributeBlock>(json, classElement);
}

void WriteAllBlocks(JsonWriter& json, OXMIDicClass& classElement) {
    json.BeginArray();
    for (OXMIDicAttributeBlock& block :
         zandic::All<OXMIDicAttributeBlock>(classElement, &OXMIDicClass::GetAttBlocks)) {
        WriteUuid(json, block);
    }
    json.EndArray();
}

void WriteBlock(JsonWriter& json, OXMIDicElementH& object) {
    ObjectOf<OXMIDicAttributeBlock, kBlockFields>(json, object);
}

}  // namespace tool::dump
