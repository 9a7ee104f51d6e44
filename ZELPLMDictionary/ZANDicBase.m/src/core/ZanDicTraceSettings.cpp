#include "ZanDicTraceSettings.h"

#include <climits>
#include <cstdlib>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ZELCall.h"
#include "ZELEnvironment.h"
#include "ZELFile.h"
#include "ZanDicTrace.h"

constinit int ZanDicTrace::threshold = 0;

namespace {

constexpr std::string_view kInitTraces = "ZanDicData::InitTraces";

/// Of a line of the methods file, so many characters count.
constexpr std::size_t kLineLength = 79;

using OperationNames = std::set<std::string, std::less<>>;

constinit int traceLevel = 0;
constinit bool isFirstTime = true;

/// The listed operations; null when there are none. Never destroyed: what is destroyed last may trace.
constinit OperationNames* operations = nullptr;

void UpdateThreshold() { ZanDicTrace::threshold = operations != nullptr ? INT_MAX : traceLevel; }

/// Cuts \p content into the names that it lists, in its order, empty ones included.
std::vector<std::string> ListedNames(std::string_view content) {
    std::vector<std::string> names;
    while (!content.empty()) {
        const std::string_view line = content.substr(0, content.find('\n'));
        content.remove_prefix(line.size() < content.size() ? line.size() + 1 : line.size());
        if (!line.starts_with('#')) names.emplace_back(line.substr(0, kLineLength));
    }
    return names;
}

void ListOperations(const std::vector<std::string>& names) {
    delete std::exchange(operations,
                         names.empty() ? nullptr : new OperationNames(names.begin(), names.end()));
    UpdateThreshold();
}

HRESULT ReadMethodsFile(const char* path) {
    ZELFileContent content;
    if (Failed(ZELReadFile(path, content))) {
        std::string text(kInitTraces);
        text.append("*** WARNING *** Could not open ").append(path).append(" file.");
        ZanDicWriteAlways(text, ZELLineSeverity::Warning);
        return E_FAIL;
    }

    const std::vector<std::string> names = ListedNames(content.View());
    ListOperations(names);
    const ZanDicTraceScope trace(kInitTraces);
    for (std::size_t position = 1; position <= names.size(); ++position) {
        if (auto line = trace.Line(TraceLevel::Detail)) {
            line << "_ZANDIC_TraceMethods[" << position << "]=" << names[position - 1];
        }
    }
    return S_OK;
}

int NumberOf(const std::string& text) {
    const long long number = std::strtoll(text.c_str(), nullptr, 10);
    if (number > INT_MAX) return INT_MAX;
    return number < INT_MIN ? INT_MIN : static_cast<int>(number);
}

}  // namespace

bool ZanDicTrace::IsWritten(int level, std::string_view operation) {
    return level <= traceLevel || (operations != nullptr && operations->contains(operation));
}

void ZanDicTrace::InitFromEnvironment() {
    if (isFirstTime) {
        if (const auto level = ZELGetEnv("ZANDIC_TRACE_LEVEL")) ZanDicSetTraceLevel(NumberOf(*level));
        if (const auto path = ZELGetEnv("ZANDIC_TRACE_METHODS")) ReadMethodsFile(path->c_str());
        isFirstTime = false;
    }
    if (auto line = ZanDicTraceScope(kInitTraces).Line(TraceLevel::Call)) {
        line << "_ZANDIC_TraceFirstTime=" << isFirstTime << ", _ZANDIC_TraceLevel=" << traceLevel;
    }
}

void ZanDicSetTraceLevel(int level) {
    traceLevel = level;
    UpdateThreshold();
}

int ZanDicGetTraceLevel() { return traceLevel; }

HRESULT ZanDicSetTraceMethodsFile(const char* path) {
    return ZELCall([&] {
        if (path != nullptr && *path != '\0') return ReadMethodsFile(path);
        ListOperations({});
        return S_OK;
    });
}
