/// What tests of the reader share: documents made for one test, ways to what was loaded, and an observer
/// that keeps the faults it is told.
#ifndef READER_FIXTURE_H
#define READER_FIXTURE_H

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "DictionaryFixture.h"
#include "OXMIDicClass.h"
#include "OXMIDicPackage.h"
#include "ZELTestDirectory.h"
#include "ZanDicDiagnostic.h"

/// Keeps what it is told; goes on after errors, or stops at the first.
class FaultCollector final : public ZanDicDiagnosticObserver {
public:
    struct Row {
        ZanDicSeverity severity;
        ZanDicDiagnosticCode code;
        std::string file, package, tag, element, attribute, value, reason, otherParty, traceText;
        bool traced;
        ZanDicPlace place;
        ZELDbBinary otherUuid;
        std::string otherPackage;
        int number;
        int cause;
    };

    explicit FaultCollector(bool goesOn = true, bool isThorough = false)
        : _GoesOn(goesOn), _IsThorough(isThorough) {
        ZanDicSetDiagnosticObserver(this);
    }
    FaultCollector(const FaultCollector&) = delete;
    FaultCollector& operator=(const FaultCollector&) = delete;
    ~FaultCollector() { ZanDicSetDiagnosticObserver(nullptr); }

    bool OnDiagnostic(const ZanDicDiagnostic& fault) override {
        const auto text = [](std::string_view view) { return std::string(view); };
        rows.push_back({fault.Severity(), fault.Code(), text(fault.File()), text(fault.Package()),
                        text(fault.Tag()), text(fault.Element()), text(fault.Attribute()),
                        text(fault.Value()), text(fault.Reason()), text(fault.OtherParty()),
                        text(fault.TraceText()), fault.Traced(), fault.Place(), fault.OtherUuid(),
                        text(fault.OtherPackage()), fault.Number(), fault.Cause()});
        return _GoesOn;
    }

    void OnDocument(ZanDicReadDocument document) override {
        const std::string_view name = document.file.substr(document.file.rfind('/') + 1);
        documents += std::string(name) + " " + std::string(document.package) + " " +
                     (document.end == ZanDicReading::Loaded   ? "loaded"
                      : document.end == ZanDicReading::Failed ? "failed"
                                                              : "name taken") +
                     "\n";
    }

    bool IsThorough() const override { return _IsThorough; }

    /// Each fault on a line: code, place, element and attribute.
    std::string Summary() const {
        std::string summary;
        for (const Row& row : rows) {
            summary += std::string(ZanDicDiagnosticName(row.code)) + " " + std::to_string(row.place.line) +
                       ":" + std::to_string(row.place.column) + " " + row.element;
            if (!row.attribute.empty()) summary += " @" + row.attribute;
            if (row.cause != 0) summary += " <- " + std::to_string(row.cause);
            summary += "\n";
        }
        return summary;
    }

    std::vector<Row> rows;
    std::string documents;  ///< a line for each that was read

private:
    bool _GoesOn;
    bool _IsThorough;
};

class ReaderFixture : public DictionaryFixture {
protected:
    /// The UUID text of a number, as in the bodies of documents.
    static std::string U(unsigned number) {
        char text[36];
        std::snprintf(text, sizeof text, "00000000-0000-0000-%016X", number);
        return text;
    }

    /// ` Name="NAME" Uuid="UUID"`.
    static std::string Id(std::string_view name, unsigned number) {
        return " Name=\"" + std::string(name) + "\" Uuid=\"" + U(number) + "\"";
    }

    /// A class tag that holds \p members.
    static std::string ClassTag(std::string_view name, unsigned number, std::string_view attributes = "",
                                std::string_view members = "") {
        return "<Class" + Id(name, number) + " Persistent=\"Yes\" " + std::string(attributes) + ">" +
               std::string(members) + "</Class>\n";
    }

    /// Makes the document of a package; its UUID ends with F and a number of its own.
    void MakePackage(std::string_view name, std::string_view body, std::string_view attributes = "") {
        _Directory.MakeFile(std::string(name) + ".metadata", "<Package" + Id(name, 0xF0000 + _Packages++) +
                                                                 " " + std::string(attributes) + ">\n" +
                                                                 std::string(body) + "</Package>\n");
    }

    HRESULT Load(std::string_view name) { return LoadFrom(_Directory.Path(), name); }

    HRESULT LoadFrom(const std::string& directories, std::string_view name) {
        const ZELString packageName(name);
        return Manager().LoadPackageFromDir(directories.c_str(), &packageName, OXMDicPERSISTENT_Xml,
                                            OXMDicCONTENT_metadata);
    }

    /// Makes the document of the package P and loads it.
    HRESULT LoadBody(std::string_view body, std::string_view attributes = "") {
        MakePackage("P", body, attributes);
        return Load("P");
    }

    Held<OXMIDicPackage> Package(std::string_view name = "P") {
        const ZELString packageName(name);
        Held<OXMIDicPackage> package;
        Manager().GetPackage(&packageName, package.Out());
        return package;
    }

    bool IsLoaded(std::string_view name) { return static_cast<bool>(Package(name)); }

    /// The registered object of a number, as the interface \p Face; none when it has no such interface.
    template <class Face>
    Held<Face> Find(unsigned number) {
        const ZELDbBinary uuid = TestUuid(number);
        Held<OXMIDicElementH> object;
        Held<Face> face;
        if (Succeeded(Manager().Search(&uuid, object.Out())))
            object->QueryInterface(Face::ClassId(), face.OutVoid());
        return face;
    }

    static std::string NameOf(OXMIDicElementH& object) {
        ZELString name;
        object.GetName(&name);
        return std::string(name.View());
    }

    /// "name=value;" of each free attribute.
    static std::string OtherAttributes(OXMIDicElementH& object) {
        ZELListValZELUnicodeString names;
        ZELListValZELUnicodeString values;
        object.GetAllOtherAttributes(names, values);
        std::string text;
        for (int position = 1; position <= names.Size(); ++position) {
            text += std::string(names[position].View()) + "=" + std::string(values[position].View()) + ";";
        }
        return text;
    }

    /// The lines that documents caused.
    std::string DocumentLines() const {
        std::string text;
        for (const LineCapture::Line& line : Lines()) {
            if (line.fromDocument) text += line.text + "\n";
        }
        return text;
    }

    /// The lines of one operation.
    std::string LinesOf(std::string_view operation) const {
        std::string text;
        for (const LineCapture::Line& line : Lines()) {
            if (std::string_view(line.text).starts_with(operation)) text += line.text + "\n";
        }
        return text;
    }

    const TestDirectory& Directory() const { return _Directory; }

private:
    TestDirectory _Directory;
    unsigned _Packages = 0;
};

#endif
