#include "ToolRunner.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace {

constexpr std::string_view kVariablesOfTheDictionary[] = {
    "ZELDictionaryPath=", "ZANDIC_TRACE_LEVEL=", "ZANDIC_TRACE_METHODS=", "VALKOR_META="};

int OpenForWriting(const std::string& path) {
    return open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
}

std::vector<char*> PointersTo(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts) pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

/// \returns the settings, and the variables of this process that none of them sets.
std::vector<std::string> EnvironmentWith(const std::vector<std::string>& settings) {
    std::vector<std::string> environment = settings;
    for (char** entry = environ; *entry != nullptr; ++entry) {
        const std::string_view variable = *entry;
        if (std::none_of(std::begin(kVariablesOfTheDictionary), std::end(kVariablesOfTheDictionary),
                         [&](std::string_view name) { return variable.starts_with(name); })) {
            environment.emplace_back(variable);
        }
    }
    return environment;
}

std::string Replaced(std::string text, const std::string& from, std::string_view to) {
    for (std::size_t at = 0; (at = text.find(from, at)) != text.npos; at += to.size()) {
        text.replace(at, from.size(), to);
    }
    return text;
}

std::vector<std::string> Joined(std::vector<std::string> first, const std::vector<std::string>& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

}  // namespace

std::string ContentOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

int ToolTest::Spawn(const std::vector<std::string>& arguments, const std::vector<std::string>& settings,
                    int out, int err) {
    std::vector<std::string> command = Joined({ZANDIC_TOOL}, arguments);
    std::vector<std::string> environment = EnvironmentWith(settings);
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&files, out, STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&files, err, STDERR_FILENO);

    pid_t process = 0;
    const int fault = posix_spawn(&process, ZANDIC_TOOL, &files, nullptr, PointersTo(command).data(),
                                  PointersTo(environment).data());
    posix_spawn_file_actions_destroy(&files);
    if (fault != 0) {
        ADD_FAILURE() << "the tool cannot be run";
        return -1;
    }
    int status = 0;
    waitpid(process, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

ToolRun ToolTest::Run(const std::vector<std::string>& arguments,
                      const std::vector<std::string>& settings) const {
    const int out = OpenForWriting(_Streams.Path("out"));
    const int err = OpenForWriting(_Streams.Path("err"));
    const int status = Spawn(arguments, settings, out, err);
    close(out);
    close(err);
    return {status, ContentOf(_Streams.Path("out")), ContentOf(_Streams.Path("err"))};
}

ToolRun ToolTest::RunIntoClosedPipe(const std::vector<std::string>& arguments) const {
    int ends[2] = {-1, -1};
    EXPECT_EQ(pipe2(ends, O_CLOEXEC), 0);
    close(ends[0]);
    const int err = OpenForWriting(_Streams.Path("err"));
    const int status = Spawn(arguments, {}, ends[1], err);
    close(ends[1]);
    close(err);
    return {status, "", ContentOf(_Streams.Path("err"))};
}

ToolRun ToolTest::OnSample(std::vector<std::string> arguments) const {
    return Run(Joined({"--path", ZANDIC_SAMPLES}, arguments));
}

ToolRun ToolTest::OnOwn(std::vector<std::string> arguments) const {
    return Run(Joined({"--path", _Own.Path()}, arguments));
}

int ToolTest::Shell(const std::string& line) {
    const std::string command = "export TOOL='" ZANDIC_TOOL "' SAMPLES='" ZANDIC_SAMPLES "'; " + line;
    const int status = std::system(command.c_str());  // NOLINT(concurrency-mt-unsafe,cert-env33-c)
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void ToolTest::MakePackage(std::string_view name, std::string_view attributes,
                           std::string_view content) const {
    std::string document = "<Package Name=\"";
    document.append(name)
        .append("\" ")
        .append(attributes)
        .append(">\n")
        .append(content)
        .append("</Package>\n");
    _Own.MakeFile(std::string(name) + ".metadata", document);
}

std::string ToolTest::WithoutPlaces(std::string text) const {
    return Replaced(Replaced(std::move(text), ZANDIC_SAMPLES, "samples"), _Own.Path(), "own");
}

std::string ExpectedOutput(std::string_view name) {
    const std::string path = std::string(ZANDIC_TEST_DATA "/expected/tool/").append(name);
    const std::string text = ContentOf(path);
    EXPECT_FALSE(text.empty()) << path << " is missing";
    return text;
}

std::string WithoutTimes(const std::string& text) {
    constexpr std::string_view kUnit = " ms\n";
    std::string masked = text;
    for (std::size_t at = 0; (at = masked.find(kUnit, at)) != masked.npos; at = masked.find('\n', at)) {
        const std::size_t number = masked.find_last_not_of("0123456789.", at - 1);
        const std::size_t before = masked.find_last_not_of(' ', number) + 1;
        masked.replace(before, at - before, " #");
        at = before;
    }
    return masked;
}

std::string LastLine(const std::string& text) {
    const std::string lines = text.substr(0, text.find_last_not_of('\n') + 1);
    return lines.substr(lines.rfind('\n') + 1);
}

long LinesIn(const std::string& text) { return std::count(text.begin(), text.end(), '\n'); }
