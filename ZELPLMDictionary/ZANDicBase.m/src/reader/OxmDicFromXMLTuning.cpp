#include "OxmDicFromXMLTuning.h"

#include <exception>

#include "TuningReading.h"
#include "TuningTexts.h"
#include "ZELFatalError.h"

HRESULT OxmDicFromXML_Tuning(OXMIDicMgr* manager, const ZELString* packageName, const char* dirNames,
                             OXMIDicPackage* package) {
    if (manager == nullptr || packageName == nullptr || package == nullptr) {
        ZELFatalError(tuningtext::kAssertion, tuningtext::kSource, 1);
    }
    try {
        const ZanDicTrace::DocumentScope document;
        TuningReading tuning(*manager, *packageName, dirNames != nullptr ? dirNames : "", *package);
        if (tuning.Read() == S_OK) {
            TuningReading* const one = &tuning;
            TuningReading::Compute({&one, 1});
        }
        return tuning.Result();
    } catch (const std::exception&) {
        return E_FAIL;
    }
}
