/// For what a library does once per process: the test program runs itself again.
#ifndef NEW_PROCESS_H
#define NEW_PROCESS_H

#include <cstdio>
#include <filesystem>
#include <string>

/// Runs this test program anew.
/// \param environment assignments for the shell, separated by blanks.
/// \param filter the tests that it runs, disabled ones included; none by default.
/// \returns what it writes to standard output, but for the test framework's own lines.
inline std::string OutputOfNewProcess(const std::string& environment, const std::string& filter = "-*") {
    const std::string program = std::filesystem::read_symlink("/proc/self/exe");
    const std::string command = environment + " '" + program +
                                "' --gtest_brief=1 --gtest_also_run_disabled_tests" + " --gtest_filter='" +
                                filter + "' 2>/dev/null";
    std::FILE* const pipe = ::popen(command.c_str(), "r");
    if (pipe == nullptr) return "could not start";

    std::string output;
    std::string line;
    for (int character = std::fgetc(pipe); character != EOF; character = std::fgetc(pipe)) {
        line += static_cast<char>(character);
        if (character != '\n') continue;
        const bool ofFramework = line.starts_with("[") || line.starts_with("Note:") || line == "\n" ||
                                 line.starts_with("Running main") ||
                                 line.find("DISABLED TEST") != std::string::npos;
        if (!ofFramework) output += line;
        line.clear();
    }
    const int status = ::pclose(pipe);
    return output + line + (status == 0 ? "" : "failed\n");
}

#endif
