/// One class as an EXPRESS entity.
#ifndef EXPRESS_CLASS_H
#define EXPRESS_CLASS_H

#include <optional>
#include <string_view>
#include <vector>

#include "OXMIDicClass.h"
#include "ZELDurableFile.h"
#include "ZELString.h"
#include "ZanDicQuery.h"
#include "ZanDicStored.h"

/// Writes entities into a schema.
class ExpressClass {
public:
    explicit ExpressClass(ZELDurableFile& file) : _File(file) {}

    /// \returns S_OK; E_FAIL when the class has a null among its unique keys: the schema is unfinished then.
    HRESULT Write(OXMIDicClass& element);

    /// Whether an attribute written so far is a date.
    bool HasDate() const { return _HasDate; }

private:
    /// A member of the class that is being written, an attribute as a rule.
    struct Member {
        explicit Member(ZanDicRef<ZanDicObj> own);
        explicit Member(OXMIDicElementH& face);

        ZELString name;
        OXMDicTYPE type;
        ZanDicRef<ZanDicObj> object;            ///< null for one that is known by its interface
        std::optional<StoredAttribute> stored;  ///< none for what is no attribute of this library
    };

    void ListMembers(OXMIDicClass& element, ZanDicRefList& faces);
    void EntityLine(OXMIDicClass& element);
    void AttributeLine(const Member& member);
    void SimpleType(const StoredAttribute& attribute);
    void RelationType(const StoredAttribute& attribute);
    void InverseLine(const Member& member);
    HRESULT UniqueLines(OXMIDicClass& element);
    void Name(const Member& member, std::string_view begin);
    void OptionalAndCollection(const StoredAttribute& attribute);

    template <class... Pieces>
    void Put(const Pieces&... pieces) {
        _File.AppendAll(pieces...);
    }
    void EndLine() { _File.Append('\n'); }
    void Number(int number);

    ZELDurableFile& _File;
    std::vector<Member> _MEMBERS;  ///< of the class that is being written
    bool _HasDate = false;
};

#endif
