#include "PackageCounts.h"

#include <fmt/format.h>

#include "Model.h"
#include "Objects.h"

namespace tool {
namespace {

namespace tag = ZANDicFormat::tag;

constexpr std::string_view kCountedTags[] = {
    tag::kClass,
    tag::kInstance,
    tag::kExtension,
    tag::kSimple,
    tag::kRelationship,
    tag::kInverse,
    tag::kUnique,
    tag::kAttributeBlock,
    tag::kInterface,
    tag::kMethod,
    tag::kParameter,
    tag::kEnum,
    tag::kEnumerator,
    tag::kCategory,
    tag::kRBOClass,
    tag::kRBOMapping,
    tag::kRBORoot,
    tag::kRBOComponent,
    tag::kRBOPathExpression,
};

constexpr int kCostDigits = 3;

PackageCounts CountsOf(OXMIDicPackage& package, const LoadCost& cost) {
    PackageCounts counts{std::string(zandic::Name(package).View()),
                         std::string(zandic::UuidText(zandic::Uuid(package)).View()),
                         {},
                         cost};
    ForEachObjectOf(package, [&counts](OXMIDicElementH& object) { ++counts.counts[TagOf(object)]; });
    return counts;
}

}  // namespace

int PackageCounts::Total() const {
    int total = 0;
    for (const auto& [counted, count] : counts) total += count;
    return total;
}

std::span<const std::string_view> CountedTags() { return kCountedTags; }

std::vector<PackageCounts> CountPackages(const Session& session) {
    std::vector<PackageCounts> packages;
    for (const auto& [name, cost] : session.LoadCosts()) {
        const auto package = session.Dictionary().Package(name);
        if (package) packages.push_back(CountsOf(*package, cost));  // else it was refused
    }
    return packages;
}

PackageCounts SumOf(const std::vector<PackageCounts>& packages) {
    PackageCounts sum{"total",
                      fmt::format("{} {}", packages.size(), packages.size() == 1 ? "package" : "packages"),
                      {},
                      {}};
    for (const PackageCounts& each : packages) {
        for (const auto& [counted, count] : each.counts) sum.counts[counted] += count;
        sum.cost += each.cost;
    }
    return sum;
}

void WriteCounts(const PackageCounts& counts, bool withCost, JsonWriter& json) {
    json.Key("elements");
    json.BeginObject();
    for (const std::string_view counted : kCountedTags) {
        const auto found = counts.counts.find(counted);
        if (found == counts.counts.end()) continue;
        json.Key(counted);
        json.Number(found->second);
    }
    json.EndObject();
    if (!withCost) return;
    json.Key("milliseconds");
    json.Decimal(counts.cost.Milliseconds(), kCostDigits);
    json.Key("bytes");
    json.Number(counts.cost.bytes);
}

}  // namespace tool
