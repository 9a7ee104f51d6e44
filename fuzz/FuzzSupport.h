/// What the fuzz targets of the dictionary share: what they require, documents in a directory in memory, and
/// the manager of a process that says nothing.
#ifndef FUZZ_SUPPORT_H
#define FUZZ_SUPPORT_H

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "OXMIDicMgr.h"
#include "ZanDicDiagnostic.h"

/// Ends the process with \p promise on standard error unless it holds: a finding.
void Require(bool holds, const char* promise);

/// \returns a number that depends on every byte: for choices that an input has no bytes of its own for.
std::uint32_t NumberOf(std::string_view input);

/// One file that an input holds.
struct FuzzDocument {
    std::string package;    ///< of letters, digits and "_"
    std::string extension;  ///< of the document: "metadata", or "tuning"
    std::string_view text;

    std::string FileName() const { return package + "." + extension; }
};

/// Splits \p input at zero bytes into documents, \p most of them; the rest counts as one.
///
/// Each is named by the first `Name="..."` in it, so that documents which use each other find each other;
/// "P" where there is no such name that a file may have. The second of a name is the tuning of the first, the
/// third is left out.
std::vector<FuzzDocument> SplitIntoDocuments(std::string_view input, std::size_t most);

/// A directory in memory, gone with the process.
class FuzzDirectory {
public:
    FuzzDirectory();
    ~FuzzDirectory();
    FuzzDirectory(const FuzzDirectory&) = delete;
    FuzzDirectory& operator=(const FuzzDirectory&) = delete;

    const std::string& Path() const { return _Path; }

    /// Makes \p documents the only files of the directory.
    void Fill(const std::vector<FuzzDocument>& documents);
    void Write(const std::string& name, std::string_view text) const;
    /// Removes all files.
    void Clear();

    /// \returns each file's name and text, sorted.
    std::vector<std::pair<std::string, std::string>> Files() const;

private:
    std::string _Path;
    std::vector<std::string> _FILES;  ///< what Fill wrote last
};

/// \returns the whole file, which has to be there.
std::string FuzzFileText(const std::string& path);

/// \returns the manager, initialised at the first call. From then on lines of the dictionary go nowhere.
OXMIDicMgr& FuzzManager();

/// \returns how many lines that went nowhere were warnings.
int FuzzWarnings();

/// \returns the names of the packages that are loaded, in order, by domain.
std::vector<std::string> LoadedPackages(OXMIDicMgr& manager);

/// Unloads everything and requires that no object is left but \p objectsBefore.
void UnloadAll(OXMIDicMgr& manager, int objectsBefore);

/// Asks for everything that a fault knows, and goes on.
class FuzzObserver final : public ZanDicDiagnosticObserver {
public:
    explicit FuzzObserver(bool isThorough);
    ~FuzzObserver();
    FuzzObserver(const FuzzObserver&) = delete;
    FuzzObserver& operator=(const FuzzObserver&) = delete;

    bool OnDiagnostic(const ZanDicDiagnostic& fault) override;
    bool IsThorough() const override { return _IsThorough; }
    /// Whether a tuning was told to be faulty.
    bool HasFailedTuning() const { return _HasFailedTuning; }
    /// Whether a reference was told to be into a package that is loaded and not used.
    bool HasMissedUse() const { return _HasMissedUse; }

private:
    bool _IsThorough;
    bool _HasFailedTuning = false;
    bool _HasMissedUse = false;
    int _Count = 0;
    std::size_t _Size = 0;
};

#endif
