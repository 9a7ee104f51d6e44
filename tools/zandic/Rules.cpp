#include "Rules.h"

#include <algorithm>

namespace tool {

std::vector<const Rule*> AllRules() {
    std::vector<const Rule*> rules;
    for (const std::span<const Rule> table : {RulesOfReading(), RulesOfModelling()}) {
        for (const Rule& rule : table) rules.push_back(&rule);
    }
    std::sort(rules.begin(), rules.end(), [](const Rule* a, const Rule* b) { return a->code < b->code; });
    return rules;
}

const Rule* FindRule(std::string_view code) {
    for (const std::span<const Rule> table : {RulesOfReading(), RulesOfModelling()}) {
        for (const Rule& rule : table) {
            if (rule.code == code) return &rule;
        }
    }
    return nullptr;
}

}  // namespace tool
