/// The faults that reading documents finds, as values, for programs that want all of them, or want
/// more of them than a line of text.
#ifndef ZAN_DIC_DIAGNOSTIC_H
#define ZAN_DIC_DIAGNOSTIC_H

#include <cstdint>
#include <memory>
#include <string_view>

#include "ZELDbBinary.h"
#include "ZanDicExport.h"

class ZELVBTXMLDocument;

/// How grave a fault is: an error makes the load fail, a warning does not. Faults of tuning documents are
/// warnings: the package stays loaded, without what the document describes.
enum class ZanDicSeverity : std::uint8_t { Warning, Error };

/// What is wrong. The words that belong to a code are those of `ZanDicDiagnosticName`.
enum class ZanDicDiagnosticCode : std::uint8_t {
    // the document as a whole
    FileNotFound,
    InvalidFileExtension,
    InvalidPackageName,
    DocumentNotReadable,  ///< unreadable file, or not well-formed XML
    NoPackageTag,
    PackageNameDiffers,
    InvalidDomain,
    PrerequisiteFailed,
    PackageNotCreated,
    TuningFailed,
    // tags and attributes
    MissingAttribute,
    InvalidValue,
    InvalidNumber,
    UnknownWord,
    UnknownAttribute,
    UnknownTag,
    DeprecatedTag,
    UnsupportedTag,
    RepeatedAttribute,  ///< the last one counts
    // elements
    NotCreated,
    DuplicateName,
    DuplicateUuid,
    // references
    ReferenceNotFound,
    ReferenceOfWrongKind,
    CrossDomainReference,
    ReferenceRefused,
    InvalidRedefinition,
    // attribute blocks
    InvalidBlock,
};

/// How many codes there are.
inline constexpr int kZanDicDiagnosticCodeCount = static_cast<int>(ZanDicDiagnosticCode::InvalidBlock) + 1;

/// \returns the stable word of a code, such as "duplicate-uuid"; static storage.
ZANDICBASE_API std::string_view ZanDicDiagnosticName(ZanDicDiagnosticCode code);

/// A place in a document: line and column count from 1, the column in characters. Both 0: no place.
struct ZanDicPlace {
    int line = 0;
    int column = 0;
};

/// One fault, valid during the call that reports it. Texts are empty where they do not apply.
class ZANDICBASE_API ZanDicDiagnostic {
public:
    virtual ZanDicSeverity Severity() const = 0;
    virtual ZanDicDiagnosticCode Code() const = 0;

    /// The document's file name as it was opened, or the name asked for when there is no file.
    virtual std::string_view File() const = 0;

    /// The package that was being read.
    virtual std::string_view Package() const = 0;

    /// The element concerned as its author wrote it: tag, name and, for a member, "Class::member".
    virtual std::string_view Tag() const = 0;
    virtual std::string_view Element() const = 0;

    /// The attribute of the tag, and its value.
    virtual std::string_view Attribute() const = 0;
    virtual std::string_view Value() const = 0;

    /// What is wrong, in one plain sentence without place, for people.
    virtual std::string_view Reason() const = 0;

    /// The other party, such as "Package::Class" of the owner of a UUID.
    virtual std::string_view OtherParty() const = 0;

    /// The trace line, or lines separated by newlines, that the same fault writes.
    virtual std::string_view TraceText() const = 0;

    /// Whether the trace settings let that text through.
    virtual bool Traced() const = 0;

    /// Worked out when asked for, which costs a walk over the document.
    virtual ZanDicPlace Place() const = 0;

    /// The UUID of the other party and the name of its package, for finding it; empty where there is none.
    virtual ZELDbBinary OtherUuid() const = 0;
    virtual std::string_view OtherPackage() const = 0;

    /// Number of this fault in its load, in the order of telling, from 1.
    virtual int Number() const = 0;

    /// Number of the fault without which this one would not be there; 0: it stands for itself.
    virtual int Cause() const = 0;

protected:
    ~ZanDicDiagnostic() = default;
};

/// How the reading of a document ended.
enum class ZanDicReading : std::uint8_t {
    Loaded,     ///< what it describes is there
    Failed,     ///< it has an error, or needs a package that has one; nothing of it is there
    NameTaken,  ///< another document has brought a package of that name: this one was not read any further
};

/// A document whose reading is over.
struct ZanDicReadDocument {
    std::string_view file;  ///< as it was opened
    std::string_view
        package;  ///< in it; of a document that cannot be read, the one that its file's name says
    ZanDicReading end;
    /// What the file holds, for whoever wants to keep it: it may be taken. Null when it is not well formed.
    std::unique_ptr<ZELVBTXMLDocument>& tree;
};

/// Is told each fault once, whatever the trace level, in the order in which the reader finds them.
class ZANDICBASE_API ZanDicDiagnosticObserver {
public:
    /// \returns whether to go on after an error: a faulty attribute then counts as absent and a faulty
    /// element as left out; the load fails at its end all the same and leaves nothing behind. The
    /// answer to a warning does not matter, but for one of a tuning document, which it ends the same way.
    /// Must not call the dictionary.
    virtual bool OnDiagnostic(const ZanDicDiagnostic& diagnostic) = 0;

    /// Is told each document that was found, when its reading is over; before that come its faults.
    virtual void OnDocument(ZanDicReadDocument /*document*/) {}

    /// Whether it wants to know of a package what loading it alone would show, and of each fault what follows
    /// from it. Then a reference to a package that is loaded and not used, directly or through others, finds
    /// nothing; a reference to what was left out, and a package that needs one which failed, are told as
    /// faults that have a cause, without a trace line; and the tuning document of a package that failed is
    /// read.
    virtual bool IsThorough() const { return false; }

protected:
    ~ZanDicDiagnosticObserver() = default;
};

/// Sets the observer; it must live until it is replaced. Null, the default, is none: the reader then
/// stops at its first error. \returns the observer before.
ZANDICBASE_API ZanDicDiagnosticObserver* ZanDicSetDiagnosticObserver(ZanDicDiagnosticObserver* observer);

/// \returns the observer that is set, or null.
ZANDICBASE_API ZanDicDiagnosticObserver* ZanDicGetDiagnosticObserver();

#endif
