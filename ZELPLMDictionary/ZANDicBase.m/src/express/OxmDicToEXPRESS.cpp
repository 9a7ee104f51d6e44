#include "OxmDicToEXPRESS.h"

#include <cstdlib>
#include <memory>
#include <new>
#include <string>

#include "ExpressClass.h"
#include "ExpressTexts.h"
#include "OXMIDicPackage.h"
#include "OxmBuildFileName.h"
#include "ZANDicValueWords.h"
#include "ZELDurableFile.h"
#include "ZELMemory.h"
#include "ZanDicSavePlace.h"
#include "ZanDicStored.h"
#include "ZanDicTrace.h"

namespace {

using namespace express;

ZELString NameOf(OXMIDicElementH& element) {
    ZELString name;
    element.GetName(&name);
    return name;
}

void ErrorLine(std::string_view begin, std::string_view middle, std::string_view end = {},
               ZELLineSeverity severity = ZELLineSeverity::Error) {
    ZanDicWriteError(std::string(begin).append(middle).append(end), severity);
}

/// Whether a class is left out, and with it all behind it; a line says so.
bool EndsTheWalk(OXMIDicClass& element) {
    unsigned char flag = 0;
    element.GetPersistent(&flag);
    if (flag != 1) {
        ZanDicRefList subClasses;
        element.GetSubClasses(subClasses.Out());
        if (subClasses.Size() == 0) {
            ErrorLine(kWarning, NameOf(element).View(), kNotPersistent, ZELLineSeverity::Warning);
            return true;
        }
    }
    flag = 0;
    element.GetInstance(&flag);
    if (flag == 1) ErrorLine(kWarning, NameOf(element).View(), kIsAnInstance, ZELLineSeverity::Warning);
    return flag == 1;
}

HRESULT WriteClasses(ZELDurableFile& file, OXMIDicPackage& package) {
    ZanDicRefList classes;
    package.GetClasses(classes.Out());
    ExpressClass entities(file);
    for (int position = 1; position <= classes.Size(); ++position) {
        const ZanDicRef<OXMIDicClass> element = As<OXMIDicClass>(*classes[position]);
        // Deliberate: what is left out ends the walk (OxmDicToEXPRESSTest.AClassLeftOutHidesThoseBehindIt).
        if (!element || EndsTheWalk(*element)) break;
        if (const HRESULT rc = entities.Write(*element); Failed(rc)) return rc;
        classes.Drop(position);
    }
    if (entities.HasDate()) {
        file.Append(kDateEntity);
        file.Append("\n\n");
    }
    return S_OK;
}

HRESULT WriteSchema(ZELDurableFile& file, OXMIDicPackage& package, const ZELString& name) {
    for (const std::string_view piece :
         {kHeadLine, std::string_view("\n"), kHeadRule, std::string_view("\n\n"), kSchema, name.View(),
          kSchemaEnd, std::string_view("\n\n")}) {
        file.Append(piece);
    }
    ZanDicRefList used;
    package.GetUsedPackages(used.Out());
    for (int position = 1; position <= used.Size(); ++position) {
        file.Append(kUseFrom);
        file.Append(NameOf(static_cast<OXMIDicElementH&>(*used[position])).View());
        file.Append(kEnd);
        file.Append("\n\n");
    }
    if (const HRESULT rc = WriteClasses(file, package); Failed(rc)) return rc;
    file.Append(kEndSchema);
    file.Append('\n');
    return S_OK;
}

/// The directory for the schema: where one is already, else where the package's document is.
std::string DirectoryFor(const char* directory, OXMIDicPackage& package, const ZELString& name) {
    const std::string_view content =
        ZANDicFormat::WordOf(ZANDicFormat::kContentWords, StoredContentOf(package));
    return SaveDirectoryFor(directory, name.View(), content);
}

HRESULT Export(OXMIDicPackage& package, const char* directory) {
    const ZELString name = NameOf(package);
    if (!CanNameADocument(name.View())) {
        ErrorLine(kNoFileName, name.View());
        return E_FAIL;
    }
    const std::string target = DirectoryFor(directory, package, name);
    if (target.empty()) {
        ErrorLine(kNoDirectory, name.View());
        return E_FAIL;
    }
    char* built = nullptr;
    const HRESULT named =
        OxmBuildFileName('w', target.c_str(), name.ConvertToChar(), std::string(kExtension).c_str(), &built);
    const std::unique_ptr<char, decltype(&std::free)> fullName(built, &std::free);
    const std::string_view shownName = built != nullptr ? built : "";
    ErrorLine(kFullName, shownName, kFullNameEnd, ZELLineSeverity::None);
    if (Failed(named)) return named;

    ZELDurableFile file;
    HRESULT rc = file.Open(shownName);
    if (Succeeded(rc)) {
        const ZELShortageWatch shortage;
        rc = WriteSchema(file, package, name);
        shortage.Check();  // or what could not be asked for would be left out
        if (Failed(rc)) return rc;
        rc = file.Commit();
    }
    if (Failed(rc)) ErrorLine(kNotWritten, shownName, ": " + file.Reason());
    return rc;
}

}  // namespace

HRESULT OxmDicToEXPRESS(OXMIDicMgr* manager, const ZELString* packageName, const char* directory) try {
    if (manager == nullptr || packageName == nullptr) return E_FAIL;
    ZanDicRef<OXMIDicPackage> package;
    if (Failed(manager->GetPackage(packageName, package.Out())) || !package) return E_FAIL;
    return Export(*package, directory);
} catch (const std::bad_alloc&) {
    return ZELNoteShortage();
}
