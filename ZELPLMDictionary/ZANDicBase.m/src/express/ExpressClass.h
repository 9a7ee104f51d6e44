/// One class as an EXPRESS entity.
#ifndef EXPRESS_CLASS_H
#define EXPRESS_CLASS_H

#include "OXMIDicAttribute.h"
#include "OXMIDicClass.h"
#include "ZELDurableFile.h"
#include "ZanDicQuery.h"

/// Writes entities into a schema.
class ExpressClass {
public:
    explicit ExpressClass(ZELDurableFile& file) : _File(file) {}

    /// \returns S_OK; E_FAIL when the class has a null among its unique keys: the schema is unfinished then.
    HRESULT Write(OXMIDicClass& element);

    /// Whether an attribute written so far is a date.
    bool HasDate() const { return _HasDate; }

private:
    void EntityLine(OXMIDicClass& element);
    void AttributeLine(OXMIDicElementH& element);
    void SimpleType(OXMIDicAttribute& attribute);
    void RelationType(OXMIDicAttribute& attribute);
    void InverseLine(OXMIDicElementH& element);
    HRESULT UniqueLines(OXMIDicClass& element);
    void Name(OXMIDicElementH& element);
    void OptionalAndCollection(OXMIDicAttribute& attribute);

    template <class... Pieces>
    void Put(const Pieces&... pieces) {
        (_File.Append(pieces), ...);
    }
    void EndLine() { _File.Append('\n'); }
    void Number(int number);

    ZELDurableFile& _File;
    bool _HasDate = false;
};

#endif
