#include "CallTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace {

/// \returns "Class::operation" for each virtual operation that the header of an interface declares.
std::vector<std::string> OperationsIn(const std::filesystem::path& header) {
    constexpr std::string_view kBegin = "    virtual ";
    std::ifstream file(header);
    std::vector<std::string> operations;
    for (std::string line; std::getline(file, line);) {
        const std::size_t end = line.find('(');
        if (!line.starts_with(kBegin) || end == std::string::npos) continue;
        const std::size_t begin = line.rfind(' ', end) + 1;
        operations.push_back(header.stem().string() + "::" + line.substr(begin, end - begin));
    }
    return operations;
}

std::vector<std::string> DeclaredOperations() {
    std::vector<std::string> operations;
    for (const auto& entry : std::filesystem::directory_iterator(ZANDIC_INTERFACES)) {
        const auto found = OperationsIn(entry.path());
        operations.insert(operations.end(), found.begin(), found.end());
    }
    std::sort(operations.begin(), operations.end());
    return operations;
}

TEST(CallTableTest, ListsEachOperationOfEachInterfaceAsOftenAsItIsDeclared) {
    std::vector<std::string> listed;
    for (const CallRow& row : CallRows()) listed.emplace_back(row.Name());
    std::sort(listed.begin(), listed.end());

    EXPECT_GT(listed.size(), 300U);
    EXPECT_EQ(listed, DeclaredOperations());
}

TEST(CallTableTest, ListsNoFormOfAnOperationTwice) {
    std::set<void (*)(Caller&, IUnknown&)> calls;
    for (const CallRow& row : CallRows()) EXPECT_TRUE(calls.insert(row.call).second) << row.Name();
}

}  // namespace
