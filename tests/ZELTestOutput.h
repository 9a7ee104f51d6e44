#ifndef ZELTESTOUTPUT_H
#define ZELTESTOUTPUT_H

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

/// Catches what goes to standard output and standard error from its construction on.
class CaughtOutput {
public:
    CaughtOutput() {
        std::fflush(stdout);
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
    }
    ~CaughtOutput() { Stop(); }
    CaughtOutput(const CaughtOutput&) = delete;
    CaughtOutput& operator=(const CaughtOutput&) = delete;

    /// Ends the catching; the texts stand in output and error.
    void Stop() {
        if (_Stopped) return;
        _Stopped = true;
        std::fflush(stdout);
        output = testing::internal::GetCapturedStdout();
        error = testing::internal::GetCapturedStderr();
    }

    std::string output;
    std::string error;

private:
    bool _Stopped = false;
};

#endif
