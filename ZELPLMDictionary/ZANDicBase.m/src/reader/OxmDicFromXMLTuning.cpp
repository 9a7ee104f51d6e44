#include "OxmDicFromXMLTuning.h"

#include "TuningReading.h"
#include "TuningTexts.h"
#include "ZELCall.h"
#include "ZELFatalError.h"

HRESULT OxmDicFromXML_Tuning(OXMIDicMgr* manager, const ZELString* packageName, const char* dirNames,
                             OXMIDicPackage* package) {
    if (manager == nullptr || packageName == nullptr || package == nullptr) {
        ZELFatalError(tuningtext::kAssertion, tuningtext::kSource, 1);
    }
    return ZELCall([&] {
        const ZELShortageWatch shortage;
        const ZanDicTrace::DocumentScope document;
        TuningReading tuning(*manager, *packageName, dirNames != nullptr ? dirNames : "", *package);
        if (tuning.Read() == S_OK) {
            TuningReading* const one = &tuning;
            TuningReading::Compute({&one, 1});
        }
        shortage.Check();
        return tuning.Result();
    });
}
