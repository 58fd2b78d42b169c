// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <string>

#include "engine/PlayRequest.h"
#include "platform/Result.h"

class MacroFiles;
class MacroLibrary;
class ScriptingService;

/// Why something is not done that somebody asks for from outside.
struct Refusal {
    enum class Cause {
        notNow,         ///< it can be another time
        noSuchMacro,    ///< the library has none of that name
        severalMacros,  ///< that name is not enough to tell which
        notPlayable,    ///< its file cannot be read, or its script does not compile
    };
    Cause cause = Cause::notNow;
    Error error;

    friend bool operator==(const Refusal&, const Refusal&) = default;
};

/// Makes a play of what somebody names. Each that is made for somebody outside compiles; why another does not
/// is not told, but where, since that is somebody else's to read.
class PlayRequests {
    Q_DECLARE_TR_FUNCTIONS(PlayRequests)

  public:
    using Made = Result<PlayRequest, Refusal>;

    /// All outlive this.
    PlayRequests(MacroLibrary& library, MacroFiles& files, ScriptingService& scripting)
        : m_library(library), m_files(files), m_scripting(scripting) {}

    /// The path of the macro that a name means: see pathOfNamed().
    Result<std::string, Refusal> pathOf(const std::string& name) const;

    /// What Play plays, once at the usual speed unless that is wished otherwise.
    Made ofCurrent(const PlayWish& wish) const;
    /// A macro of the library by its path, as its settings say; whether it compiles is not looked at.
    Result<PlayRequest> ofPath(const std::string& path);
    /// The same by its name; as its settings say unless that is wished otherwise.
    Made ofMacro(const std::string& name, const PlayWish& wish);
    /// A file, by its absolute path; as what Play plays.
    Made ofFile(const std::string& path, const PlayWish& wish) const;

  private:
    /// `name` is how the user knows it.
    Made checked(PlayRequest request, const QString& name, const std::string& file) const;

    MacroLibrary& m_library;
    MacroFiles& m_files;
    ScriptingService& m_scripting;
};
