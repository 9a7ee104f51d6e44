#include "CallTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace {

/// \returns "Class::operation" for each virtual operation that the header of an interface declares.
std::vector<std::string> OperationsIn(const std::filesystem::path& header) {
    std::ifstream file(header);
    const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    static const std::regex kOperation(R"(\n    virtual \w+ (\w+)\()");
    std::vector<std::string> operations;
    for (std::sregex_iterator at(text.begin(), text.end(), kOperation), end; at != end; ++at) {
        operations.push_back(header.stem().string() + "::" + (*at)[1].str());
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
