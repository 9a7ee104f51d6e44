/// What tests of the dictionary share: the lines that it writes, its settings put back, a fresh manager, and
/// a failure for every object that a test leaves behind.
#ifndef DICTIONARY_FIXTURE_H
#define DICTIONARY_FIXTURE_H

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "GetOXMIDicMgr.h"
#include "OXMIDicMgr.h"
#include "ZELDbBinary.h"
#include "ZELLineSink.h"
#include "ZELString.h"
#include "ZanDicDiagnostic.h"
#include "ZanDicObj.h"
#include "ZanDicProfiling.h"
#include "ZanDicTraceSettings.h"

/// \returns a UUID of 16 bytes that ends with \p number.
inline ZELDbBinary TestUuid(unsigned number) {
    unsigned char bytes[16] = {};
    for (int index = 15; index >= 12; --index, number >>= 8)
        bytes[index] = static_cast<unsigned char>(number);
    return {bytes, 16};
}

/// Holds one reference to an interface or an object and gives it back.
template <class T>
class Held {
public:
    Held() = default;
    explicit Held(T* counted) : _Counted(counted) {}
    Held(Held&& other) noexcept : _Counted(std::exchange(other._Counted, nullptr)) {}
    Held& operator=(Held&& other) noexcept {
        std::swap(_Counted, other._Counted);
        return *this;
    }
    ~Held() { Reset(); }

    /// For out arguments. Gives back what is held first.
    T** Out() {
        Reset();
        return &_Counted;
    }
    void** OutVoid() { return reinterpret_cast<void**>(Out()); }
    void Reset() {
        if (T* const counted = std::exchange(_Counted, nullptr)) counted->Release();
    }

    /// Leaves the reference to another holder.
    T* Detach() { return std::exchange(_Counted, nullptr); }

    T* Get() const { return _Counted; }
    T* operator->() const { return _Counted; }
    T& operator*() const { return *_Counted; }
    explicit operator bool() const { return _Counted != nullptr; }

private:
    T* _Counted = nullptr;
};

/// A list of interfaces that gives each entry's reference back.
class HeldList : public ZELListPtrIUnknown {
public:
    HeldList() = default;
    HeldList(const HeldList&) = delete;
    HeldList& operator=(const HeldList&) = delete;
    ~HeldList() { Clear(); }

    void Clear() {
        for (IUnknown* const entry : *this) {
            if (entry != nullptr) entry->Release();
        }
        RemoveAll();
    }
};

/// Keeps what the libraries write, from its making to its end.
class LineCapture final : public ZELLineSink {
public:
    struct Line {
        std::string text;
        ZELLineStream stream;
        ZELLineSeverity severity;
        bool fromDocument;
    };

    LineCapture() : _Before(ZELSetLineSink(this)) {}
    LineCapture(const LineCapture&) = delete;
    LineCapture& operator=(const LineCapture&) = delete;
    ~LineCapture() { ZELSetLineSink(_Before); }

    void Write(const ZELLine& line) override {
        lines.push_back({std::string(line.text), line.stream, line.severity, line.fromDocument});
    }

    /// \returns the lines of one stream, each closed by a newline.
    std::string Text(ZELLineStream stream) const {
        std::string text;
        for (const Line& line : lines) {
            if (line.stream == stream) text += line.text + "\n";
        }
        return text;
    }

    std::vector<Line> lines;

private:
    ZELLineSink* _Before;
};

/// Every test starts with an empty dictionary at trace level 0, with no operation listed, no search path, no
/// observer and no profiler, and its manager initialised. A test that leaves a reference with an object
/// fails.
class DictionaryFixture : public ::testing::Test {
protected:
    DictionaryFixture() {
        ::unsetenv("ZELDictionaryPath");
        ResetDoors();
        GetOXMIDicMgr(_Manager.Out());
        _Manager->End();
        _ObjectsBefore = ZanDicObj::live_Objects();
        _Manager->SetLoadingMode(OXMDicPERSISTENT_Xml);
        _Manager->Init(0);
        ClearWritten();
    }

    ~DictionaryFixture() override {
        ResetDoors();
        _Manager->End();
        EXPECT_EQ(ZanDicObj::live_Objects(), _ObjectsBefore) << "a reference was not given back";
    }

    OXMIDicMgr& Manager() { return *_Manager; }

    /// What was written to standard output since the start of the test or ClearWritten: each line and a
    /// newline.
    std::string Written() const { return _Capture.Text(ZELLineStream::Output); }
    /// The same for standard error.
    std::string WrittenErrors() const { return _Capture.Text(ZELLineStream::Error); }
    const std::vector<LineCapture::Line>& Lines() const { return _Capture.lines; }
    void ClearWritten() { _Capture.lines.clear(); }

    /// Forgets what was written and starts to trace.
    void TraceFromNow(int level) {
        ClearWritten();
        ZanDicSetTraceLevel(level);
    }

private:
    static void ResetDoors() {
        ZanDicSetTraceLevel(0);
        ZanDicSetTraceMethodsFile(nullptr);
        ZanDicSetDiagnosticObserver(nullptr);
        ZanDicSetProfiler(nullptr);
    }

    LineCapture _Capture;
    Held<OXMIDicMgr> _Manager;
    int _ObjectsBefore = 0;
};

#endif
