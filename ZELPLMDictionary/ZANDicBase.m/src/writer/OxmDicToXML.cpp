#include "OxmDicToXML.h"

#include <cstdlib>
#include <memory>
#include <new>
#include <string>

#include "OXMIDicPackage.h"
#include "OxmBuildFileName.h"
#include "WriterTexts.h"
#include "XmlWalk.h"
#include "ZANDicValueWords.h"
#include "ZELDurableFile.h"
#include "ZELMemory.h"
#include "ZanDicSavePlace.h"

namespace {

constexpr ZanDicTraceScope kTrace(writer::kOxmDicToXML);

/// The characters of a full name that a builder handed out.
using BuiltName = std::unique_ptr<char, decltype(&std::free)>;

HRESULT BuildName(const std::string& directory, const ZELString& package, std::string_view extension,
                  BuiltName& fullName) {
    char* built = nullptr;
    const HRESULT rc = OxmBuildFileName('w', directory.c_str(), package.ConvertToChar(),
                                        std::string(extension).c_str(), &built);
    fullName.reset(built);
    return rc;
}

/// Writes the document into \p file, which may not be open: warnings are given all the same.
void WriteDocument(ZELDurableFile& file, OXMIDicPackage& package) {
    ZELVBTXMLWriter document(file);
    document.Markup(writer::kDeclaration);
    document.Markup(writer::kDocumentType);
    document.Markup(writer::kHeadComment);
    const HRESULT rc = XmlWalk(document).Write(&package);
    if (auto line = kTrace.Line(TraceLevel::Detail)) {
        line << writer::kElementResult << ZanDicTraceScope::Word(rc);
    }
}

HRESULT SavePackage(OXMIDicPackage& package, const char* directory) {
    const ZELString name = emit::NameOf(package);
    if (!CanNameADocument(name.View())) {
        if (auto line = kTrace.Error()) line << writer::kNoFileName << name;
        return E_FAIL;
    }
    const std::string_view extension =
        ZANDicFormat::WordOf(ZANDicFormat::kContentWords, StoredContentOf(package));
    const std::string target = SaveDirectoryFor(directory, name.View(), extension);
    if (target.empty()) {
        kTrace.Error(writer::kNoDirectory);
        return E_FAIL;
    }

    const ZELShortageWatch shortage;
    BuiltName fullName(nullptr, &std::free);
    const HRESULT named = BuildName(target, name, extension, fullName);
    ZELDurableFile file;
    HRESULT written = Failed(named) ? named : file.Open(fullName.get());
    WriteDocument(file, package);
    shortage.Check();  // or what could not be asked for would be left out
    if (Succeeded(written)) written = file.Commit();

    if (auto line = kTrace.Line(TraceLevel::Detail)) {
        line << writer::kFileNameResult << named << writer::kFileName << (fullName ? fullName.get() : "");
    }
    if (auto line = kTrace.Line(TraceLevel::Detail)) line << writer::kWriteResult << written;
    if (Failed(written)) {
        if (auto line = kTrace.Error()) {
            line << writer::kNotWritten << (fullName ? fullName.get() : "") << ": " << file.Reason();
        }
    }
    // Deliberate: S_OK although nothing may have been written (OxmDicToXMLTest.TellsAFailedWriteByALineOnly).
    return S_OK;
}

}  // namespace

HRESULT OxmDicToXML(OXMIDicMgr* manager, const ZELString* packageName, const char* directory) try {
    if (manager == nullptr || packageName == nullptr) {
        kTrace.Error(writer::kInvalidArgument);
        return E_FAIL;
    }
    ZanDicRef<OXMIDicPackage> package;
    if (Failed(manager->GetPackage(packageName, package.Out())) || !package) {
        kTrace.Error(writer::kGetPackageFailed);
        return E_FAIL;
    }
    return SavePackage(*package, directory);
} catch (const std::bad_alloc&) {
    kTrace.Error(writer::kOutOfMemory);
    return ZELNoteShortage();
}
