/// The dictionary as an object, and results that tell what went wrong. Part of `zandic.hpp`.
#ifndef ZANDIC_DICTIONARY_HPP
#define ZANDIC_DICTIONARY_HPP

#include <string>
#include <string_view>
#include <utility>

#include "GetOXMIDicMgr.h"
#include "OXMIDicMgr.h"
#include "OXMIDicPackage.h"
#include "OXMIDicPrimitive.h"
#include "ZELLineSink.h"
#include "ZanDicDiagnostic.h"
#include "zandicHandle.hpp"

namespace zandic {

/// Result of an operation: its code, and in words what went wrong.
class Result {
public:
    Result(HRESULT code) noexcept : _Code(code) {}
    Result(HRESULT code, std::string reason) noexcept : _Code(code), _Reason(std::move(reason)) {}

    HRESULT Code() const noexcept { return _Code; }

    /// \returns whether it is a success; "nothing found" is one.
    explicit operator bool() const noexcept { return Succeeded(_Code); }

    /// \returns what went wrong, "FILE:LINE:COLUMN: REASON" where a document is the cause, else what the code
    /// means. Never empty; valid while this object lives.
    std::string_view Text() const noexcept { return _Reason.empty() ? Meaning() : std::string_view(_Reason); }

    friend bool operator==(const Result& a, const Result& b) noexcept { return a._Code == b._Code; }

private:
    std::string_view Meaning() const noexcept {
        switch (_Code) {
            case S_OK:
                return "done";
            case S_FALSE:
                return "nothing found";
            case E_FAIL:
                return "refused";
            case E_INVALIDARG:
                return "an argument is missing";
            case E_NOINTERFACE:
                return "the object lacks the interface";
            default:
                return Succeeded(_Code) ? "done in a way of its own" : "failed for an unknown reason";
        }
    }

    HRESULT _Code;
    std::string _Reason;  ///< empty when there is no more to say than the code does
};

/// While one lives, keeps the first error that reading documents finds; an observer set before is told
/// everything as well.
class FirstError : private ZanDicDiagnosticObserver {
public:
    FirstError() noexcept : _Before(ZanDicSetDiagnosticObserver(this)) {}
    ~FirstError() { ZanDicSetDiagnosticObserver(_Before); }
    FirstError(const FirstError&) = delete;
    FirstError& operator=(const FirstError&) = delete;

    /// \returns "FILE:LINE:COLUMN: REASON", without the place where there is none; empty without an error.
    const std::string& Text() const noexcept { return _Text; }

private:
    bool OnDiagnostic(const ZanDicDiagnostic& diagnostic) override {
        if (_Text.empty() && diagnostic.Severity() == ZanDicSeverity::Error) {
            _Text = diagnostic.File();
            if (const ZanDicPlace place = diagnostic.Place(); place.line != 0) {
                _Text += ':' + std::to_string(place.line) + ':' + std::to_string(place.column);
            }
            _Text.append(": ").append(diagnostic.Reason());
        }
        return _Before != nullptr && _Before->OnDiagnostic(diagnostic);
    }

    ZanDicDiagnosticObserver* _Before;
    std::string _Text;
};

/// While one lives, keeps the first line of an error that the dictionary writes; all lines go where they went
/// before.
class FirstErrorLine : private ZELLineSink {
public:
    FirstErrorLine() noexcept : _Before(ZELSetLineSink(this)) {}
    ~FirstErrorLine() { ZELSetLineSink(_Before); }
    FirstErrorLine(const FirstErrorLine&) = delete;
    FirstErrorLine& operator=(const FirstErrorLine&) = delete;

    const std::string& Text() const noexcept { return _Text; }

private:
    void Write(const ZELLine& line) override {
        if (_Text.empty() && line.severity == ZELLineSeverity::Error) _Text = line.text;
        ZELSetLineSink(_Before);
        ZELWriteLine(line);
        ZELSetLineSink(this);
    }

    ZELLineSink* _Before;
    std::string _Text;
};

/// The dictionary of the process, ready for use. Null when no dictionary library is loaded.
class Dictionary {
public:
    /// Makes the dictionary ready; calling it again changes nothing.
    static Dictionary Open() {
        Dictionary dictionary;
        if (Failed(GetOXMIDicMgr(dictionary._Manager.Out())) || Failed(dictionary._Manager->Init(0))) {
            dictionary._Manager.Reset();
        }
        return dictionary;
    }

    explicit operator bool() const noexcept { return static_cast<bool>(_Manager); }

    /// \returns the manager, for whatever is not wrapped here.
    OXMIDicMgr& Manager() const noexcept { return *_Manager; }

    /// Loads a package, and before it every package that it uses, from their documents.
    /// \param directories separated by ":"; null means the environment variable `ZELDictionaryPath`.
    /// \returns a success, also when it is loaded already; else the first error of the documents.
    Result Load(std::string_view package, const char* directories = nullptr) const {
        const ZELString name(package);
        const FirstError error;
        const HRESULT rc = _Manager->LoadPackageFromDir(directories, &name, OXMDicPERSISTENT_Xml);
        return Failed(rc) ? Result(rc, error.Text()) : Result(rc);
    }

    /// Removes a package with all that it holds. What others linked in it reads as unset from then on.
    Result Unload(std::string_view package) const {
        const ZELString name(package);
        return _Manager->RemovePackage(&name);
    }

    /// Makes an empty package. Null when the name or the UUID is taken, or the domain is none.
    Handle<OXMIDicPackage> NewPackage(std::string_view name, const ZELDbBinary& uuid,
                                      std::string_view domain = "VALKOR") const {
        const ZELString packageName(name);
        const ZELString packageDomain(domain);
        Handle<OXMIDicPackage> package;
        _Manager->CreatePackage(&packageName, &uuid, &packageDomain, package.Out());
        return package;
    }

    /// Writes the document of a package, whole or not at all.
    /// \param directory must exist; null means where the package's document was found.
    /// \returns a success when nothing went wrong; else the first error told, after which the document is the
    /// one before, or lacks what the error is about.
    Result Save(std::string_view package, const char* directory = nullptr) const {
        return Write(&OXMIDicMgr::SaveXml, package, directory);
    }

    /// Writes a package as an EXPRESS schema, whole or not at all. Arguments and results as of Save.
    Result SaveExpress(std::string_view package, const char* directory = nullptr) const {
        return Write(&OXMIDicMgr::SaveExpress, package, directory);
    }

    /// \returns the loaded package of that name, a content word behind it aside; null when there is none.
    Handle<OXMIDicPackage> Package(std::string_view name) const {
        return Find(*_Manager, &OXMIDicMgr::GetPackage, name);
    }

    /// \returns the loaded packages of a domain, in the order of creation.
    List<OXMIDicPackage> Packages(std::string_view domain) const {
        const ZELString name(domain);
        List<OXMIDicPackage> packages;
        packages.AppendBy(
            [&](ZELListPtrIUnknown& entries) { return _Manager->GetPackages(&name, &entries); });
        return packages;
    }

    /// \returns the registered object of that UUID, whatever its kind; null when there is none.
    Handle<OXMIDicElementH> Search(const ZELDbBinary& uuid) const {
        Handle<OXMIDicElementH> object;
        _Manager->Search(&uuid, object.Out());
        return object;
    }

    /// \returns the predefined type of that kind; null when there is none.
    Handle<OXMIDicPrimitive> Primitive(OXMDicPRIMITIVEType kind) const {
        Handle<OXMIDicPrimitive> primitive;
        _Manager->GetPrimitive(kind, primitive.Out());
        return primitive;
    }

private:
    Result Write(HRESULT (OXMIDicMgr::*write)(const char*, const ZELString*), std::string_view package,
                 const char* directory) const {
        const ZELString name(package);
        const FirstErrorLine error;
        const HRESULT rc = (_Manager.Get()->*write)(directory, &name);
        // Writing a document that fails is told by a line only.
        return error.Text().empty() ? Result(rc) : Result(E_FAIL, error.Text());
    }

    Handle<OXMIDicMgr> _Manager;
};

}  // namespace zandic

#endif
