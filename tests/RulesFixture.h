/// What tests of the rules share: documents are read as a check reads them, then the rules look at them.
#ifndef RULES_FIXTURE_H
#define RULES_FIXTURE_H

#include <algorithm>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "DocumentRules.h"
#include "Documents.h"
#include "Finding.h"
#include "ReaderFixture.h"

class RulesFixture : public ReaderFixture {
protected:
    /// Loads a package with all that it uses and lets the rules look at its document, and at its tuning
    /// document when there is one.
    /// \param directories separated by ":".
    /// \returns what the rules find, sorted by place.
    tool::Findings Check(std::string_view package, const std::string& directories) {
        _Findings.clear();
        const tool::Findings faults = Read(package, directories);
        tool::Documents documents;
        std::string tuning;
        for (const auto& [stem, file] : FilesOf(directories)) {
            if (file.ends_with(".tuning")) {
                if (stem == package) tuning = file;
            } else {
                documents.Note(stem, file);
            }
        }
        const std::string file(documents.FileOf(package));
        const auto dictionary = zandic::Dictionary::Open();
        const auto loaded = dictionary.Package(package);
        LetRulesLook(file, documents, dictionary, loaded.Get(), faults);
        if (!tuning.empty() && loaded) LetRulesLook(tuning, documents, dictionary, loaded.Get(), faults);
        std::sort(_Findings.begin(), _Findings.end(), [](const tool::Finding& a, const tool::Finding& b) {
            const auto orderOf = [](const tool::Finding& each) {
                return std::tie(each.at.file, each.at.place.line, each.at.place.column, each.code, each.text);
            };
            return orderOf(a) < orderOf(b);
        });
        return _Findings;
    }

    /// The same for the document Parts.metadata of the test's own directory.
    tool::Findings CheckParts() { return Check("Parts", _Documents.Path()); }

    /// Makes a document in the test's own directory.
    void Make(std::string_view file, std::string_view text) { _Documents.MakeFile(file, text); }

    /// Makes Parts.metadata of what stands inside its package, the first line of which is line 2.
    void MakeParts(std::string_view body, std::string_view attributes = "") {
        Make("Parts.metadata", "<Package" + Id("Parts", 0xF) + " " + std::string(attributes) + ">\n" +
                                   std::string(body) + "\n</Package>\n");
    }

    static std::string PlaceText(const tool::FilePlace& at) {
        return std::filesystem::path(at.file).filename().string() + ":" + std::to_string(at.place.line) +
               ":" + std::to_string(at.place.column);
    }

    /// Each finding on a line, its notes on lines behind it.
    static std::string TextOf(const tool::Findings& findings) {
        std::string text;
        for (const tool::Finding& finding : findings) {
            text += PlaceText(finding.at) + ": " + std::string(finding.code) + ": " + finding.text + "\n";
            for (const tool::FindingNote& note : finding.notes) {
                text += "  " + PlaceText(note.at) + ": " + note.text + "\n";
            }
        }
        return text;
    }

    /// Each finding as "CODE LINE:COLUMN".
    static std::vector<std::string> PlacesOf(const tool::Findings& findings) {
        std::vector<std::string> places;
        for (const tool::Finding& finding : findings) {
            places.push_back(std::string(finding.code) + " " + std::to_string(finding.at.place.line) + ":" +
                             std::to_string(finding.at.place.column));
        }
        return places;
    }

private:
    tool::Findings Read(std::string_view package, const std::string& directories) {
        FaultCollector collector;
        LoadFrom(directories, package);
        tool::Findings faults;
        for (const FaultCollector::Row& row : collector.rows) {
            tool::Finding& fault = faults.emplace_back();
            fault.code = ZanDicDiagnosticName(row.code);
            fault.severity = row.severity;
            fault.at = {row.file, row.place};
            fault.text = row.reason;
        }
        return faults;
    }

    static std::vector<std::pair<std::string, std::string>> FilesOf(const std::string& directories) {
        std::vector<std::pair<std::string, std::string>> files;
        for (std::size_t begin = 0; begin <= directories.size();) {
            const std::size_t end = std::min(directories.find(':', begin), directories.size());
            for (const auto& entry :
                 std::filesystem::directory_iterator(directories.substr(begin, end - begin))) {
                if (!entry.is_regular_file() || entry.path().extension() == ".findings") continue;
                files.emplace_back(entry.path().stem().string(), entry.path().string());
            }
            begin = end + 1;
        }
        return files;
    }

    void LetRulesLook(const std::string& file, tool::Documents& documents,
                      const zandic::Dictionary& dictionary, OXMIDicPackage* package,
                      const tool::Findings& faults) {
        const tool::DocumentPlaces* const places = documents.Read(file);
        if (places == nullptr) return;
        const tool::CheckedDocument checked{file, *places, documents, dictionary, package, faults};
        if (file.ends_with(".tuning")) {
            tool::CheckTuningDocument(checked, _Findings);
        } else {
            tool::CheckDocument(checked, _Findings);
        }
    }

    TestDirectory _Documents;
    tool::Findings _Findings;
};

#endif
