/// Writes docs/rules.md: everything that `zandic check` can say, from the table that it takes its codes from.
#include <iostream>
#include <string_view>

#include "Rules.h"

namespace {

using tool::Rule;

constexpr std::string_view kHead = R"(# Faults in documents

*Made by `rules_page` (`tools/documents`) from the table of rules that `zandic check` uses; `scripts/docs` makes it
again.*

    zandic check --path DIR      every fault in the documents of DIR, at its place
    zandic explain CODE          what stands below of a code

An error makes a load fail, or costs a package its attribute blocks. A warning is something that a load accepts and
its author would want to know. An example is what stands between the tags of a package named Parts, or all of
`Parts.metadata`, or several files, each behind a line with its name.

| code | | what is wrong |
|---|---|---|
)";

std::string_view WordOf(const Rule& rule) {
    return rule.severity == ZanDicSeverity::Error ? "error" : "warning";
}

void WriteExample(std::string_view title, std::string_view example) {
    if (!example.empty()) std::cout << "\n" << title << ":\n\n```xml\n" << example << "\n```\n";
}

}  // namespace

int main() {
    std::cout << kHead;
    const auto rules = tool::AllRules();
    for (const Rule* const rule : rules) {
        std::cout << "| [" << rule->code << "](#" << rule->code << ") | " << WordOf(*rule) << " | "
                  << rule->title << " |\n";
    }
    for (const Rule* const rule : rules) {
        std::cout << "\n## " << rule->code << "\n\n*" << WordOf(*rule) << ": " << rule->title << "*\n\n"
                  << rule->words << "\n";
        WriteExample("Wrong", rule->wrong);
        WriteExample("Right", rule->right);
    }
    return std::cout.flush() ? 0 : 1;
}
