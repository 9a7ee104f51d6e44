#include "FuzzSupport.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "GetOXMIDicMgr.h"
#include "OXMIDicPackage.h"
#include "ZANDicTags.h"
#include "ZELLineSink.h"
#include "ZanDicObj.h"

namespace fs = std::filesystem;

namespace {

/// Lines go nowhere; warnings are counted.
class Silence final : public ZELLineSink {
public:
    void Write(const ZELLine& line) override {
        _Warnings += line.severity == ZELLineSeverity::Warning ? 1 : 0;
    }
    int Warnings() const { return _Warnings; }

private:
    int _Warnings = 0;
};

Silence silence;

constexpr std::string_view kNameStart = "Name=\"";
constexpr std::size_t kLongestName = 32;

bool IsOfNames(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9') || character == '_';
}

std::string NameIn(std::string_view text) {
    const std::size_t start = text.find(kNameStart);
    if (start == text.npos) return "P";
    const std::string_view rest = text.substr(start + kNameStart.size());
    const auto end = std::find_if_not(rest.begin(), rest.end(), IsOfNames);
    const std::string_view name = rest.substr(0, static_cast<std::size_t>(end - rest.begin()));
    return name.empty() || name.size() > kLongestName ? "P" : std::string(name);
}

const char* Parent() {
    const char* const set = std::getenv("TMPDIR");
    return set != nullptr ? set : fs::is_directory("/dev/shm") ? "/dev/shm" : "/tmp";
}

}  // namespace

void Require(bool holds, const char* promise) {
    if (holds) return;
    std::fprintf(stderr, "BROKEN PROMISE: %s\n", promise);
    std::abort();
}

std::uint32_t NumberOf(std::string_view input) {
    std::uint32_t number = 2166136261U;
    for (const char byte : input) number = (number ^ static_cast<unsigned char>(byte)) * 16777619U;
    return number ^ number >> 15;
}

std::vector<FuzzDocument> SplitIntoDocuments(std::string_view input, std::size_t most) {
    std::vector<FuzzDocument> documents;
    for (std::size_t count = 1; count <= most; ++count) {
        const std::size_t end = count < most ? input.find('\0') : input.npos;
        const std::string_view text = input.substr(0, end);
        FuzzDocument document{NameIn(text), "metadata", text};
        const auto sameName = std::count_if(documents.begin(), documents.end(), [&](const FuzzDocument& d) {
            return d.package == document.package;
        });
        if (sameName == 1) document.extension = "tuning";
        if (sameName < 2) documents.push_back(std::move(document));
        if (end == input.npos) break;
        input.remove_prefix(end + 1);
    }
    return documents;
}

FuzzDirectory::FuzzDirectory() : _Path(std::string(Parent()) + "/fuzzXXXXXX") {
    Require(::mkdtemp(_Path.data()) != nullptr, "a directory for documents can be made");
}

FuzzDirectory::~FuzzDirectory() {
    std::error_code ignored;
    fs::remove_all(_Path, ignored);
}

void FuzzDirectory::Fill(const std::vector<FuzzDocument>& documents) {
    for (const std::string& name : _FILES) ::unlink((_Path + "/" + name).c_str());
    _FILES.clear();
    for (const FuzzDocument& document : documents) {
        _FILES.push_back(document.FileName());
        Write(_FILES.back(), document.text);
    }
}

void FuzzDirectory::Write(const std::string& name, std::string_view text) const {
    const int file = ::open((_Path + "/" + name).c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    Require(file >= 0, "a document can be opened");
    Require(::write(file, text.data(), text.size()) == static_cast<ssize_t>(text.size()),
            "a document can be written");
    ::close(file);
}

void FuzzDirectory::Clear() {
    for (const auto& entry : fs::directory_iterator(_Path)) fs::remove(entry.path());
    _FILES.clear();
}

std::vector<std::pair<std::string, std::string>> FuzzDirectory::Files() const {
    std::vector<std::pair<std::string, std::string>> files;
    for (const auto& entry : fs::directory_iterator(_Path)) {
        files.emplace_back(entry.path().filename().string(), FuzzFileText(entry.path().string()));
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::string FuzzFileText(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    Require(file.good(), "a file that is there can be read");
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

OXMIDicMgr& FuzzManager() {
    static OXMIDicMgr* const manager = [] {
        ZELSetLineSink(&silence);
        OXMIDicMgr* made = nullptr;
        Require(Succeeded(GetOXMIDicMgr(&made)), "there is a manager");
        made->Init(0);
        return made;
    }();
    return *manager;
}

int FuzzWarnings() { return silence.Warnings(); }

std::vector<std::string> LoadedPackages(OXMIDicMgr& manager) {
    std::vector<std::string> names;
    for (const std::string_view domainName : ZANDicFormat::kDomains) {
        const ZELString domain(domainName);
        ZELListPtrIUnknown packages;
        manager.GetPackages(&domain, &packages);
        for (IUnknown* const entry : packages) {
            auto& package = *static_cast<OXMIDicPackage*>(entry);
            ZELString name;
            package.GetName(&name);
            package.Release();
            names.emplace_back(name.View());
        }
    }
    return names;
}

void UnloadAll(OXMIDicMgr& manager, int objectsBefore) {
    for (const std::string& loaded : LoadedPackages(manager)) {
        const ZELString name(loaded);
        Require(Succeeded(manager.RemovePackage(&name)), "a loaded package can be unloaded");
    }
    Require(ZanDicObj::live_Objects() == objectsBefore, "every object is gone");
}

FuzzObserver::FuzzObserver(bool isThorough) : _IsThorough(isThorough) { ZanDicSetDiagnosticObserver(this); }

FuzzObserver::~FuzzObserver() { ZanDicSetDiagnosticObserver(nullptr); }

bool FuzzObserver::OnDiagnostic(const ZanDicDiagnostic& fault) {
    _Size += fault.Reason().size() + fault.TraceText().size() + fault.Element().size() + fault.File().size();
    _Size += static_cast<std::size_t>(fault.Place().line) + fault.OtherPackage().size();
    if (fault.Code() == ZanDicDiagnosticCode::TuningFailed) _HasFailedTuning = true;
    if (fault.Code() == ZanDicDiagnosticCode::ReferenceNotFound && !fault.OtherParty().empty()) {
        _HasMissedUse = true;
    }
    Require(fault.Number() == ++_Count, "faults are numbered in order");
    Require(fault.Cause() < fault.Number(), "a fault's cause was told before it");
    return true;
}
