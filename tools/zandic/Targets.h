/// From names on the command line to objects; what is not found is told to the session.
#ifndef ZANDIC_TOOL_TARGETS_H
#define ZANDIC_TOOL_TARGETS_H

#include <string>
#include <vector>

#include "Names.h"
#include "Options.h"
#include "Session.h"
#include "zandic.hpp"

namespace tool {

/// A package as it was asked for.
struct AskedPackage {
    std::string asked;
    zandic::Handle<OXMIDicPackage> package;  ///< null: it was refused
};

/// An object as it was asked for: a package, an element or a member.
struct AskedObject {
    std::string asked;
    zandic::Handle<OXMIDicElementH> object;  ///< never null
};

/// What a command works on: the operands; without one, the packages of `--in`; without these, every package
/// of the content word "metadata" on the path. What `--in` names is loaded in any case.
///
/// A name that is wrong or not there is an error, with the nearest names; a document of the path that does
/// not load, where nobody asked for it, is a warning and costs exit status 1, not the answer.
/// Everything is loaded before anything is handed out, so that each answer knows all users.
class Targets {
public:
    /// Loads nothing yet. Both must outlive this.
    Targets(Session& session, const Options& options) : _Session(session), _Options(options) {}

    /// \returns whether the command works on whole packages that nobody named one by one.
    bool AreAll() const { return _Options.names.empty(); }

    /// \returns the packages, in order; operands must be names of packages, or UUIDs of packages on the path,
    /// which count as the names of their documents. One that is rejected for its form has no entry.
    std::vector<AskedPackage> Packages();

    /// \returns the objects, in order. An operand may be PACKAGE, PACKAGE::ELEMENT, PACKAGE::ELEMENT::MEMBER
    /// or a UUID; a member of several kinds has several entries.
    std::vector<AskedObject> Objects();

private:
    void LoadIn();
    std::vector<AskedPackage> PackagesOfAll();

    Session& _Session;
    const Options& _Options;
};

/// Loads the package of \p target if need be. \returns null when it is refused.
zandic::Handle<OXMIDicPackage> FindPackage(Session& session, const Target& target);

}  // namespace tool

#endif
