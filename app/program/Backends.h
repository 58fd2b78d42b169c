// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/Result.h"

class EventSource;
class Session;
struct LibraryServices;
struct Services;
struct SessionKind;
namespace script {
class ScriptRunner;
}

/// What stands behind each service: the session's own, and those that are the same in every session.
/// Installed for the life of the object.
class Backends {
  public:
    /// Needs a QApplication. In a session that shows and takes no keys the services that have to do with keys
    /// answer with errors, so that the program can tell the user; fails where not even a window can be shown.
    static Result<std::unique_ptr<Backends>> open(const SessionKind& kind);
    /// The same, with another place to ask for the newest version and a file with the certificates of the
    /// authorities that count there.
    static Result<std::unique_ptr<Backends>> open(const SessionKind& kind, const std::string& updateUrl,
                                                  const std::string& authorities);
    ~Backends();
    Backends(const Backends&) = delete;
    Backends& operator=(const Backends&) = delete;

    /// The name of its kind, as users write it.
    const std::string& sessionName() const;
    Services& services();
    Session& session();
    script::ScriptRunner& scripting();
    LibraryServices libraryServices();

    /// Ends each playback while that answers true, or the screen is locked; asked again and again in a run.
    void endPlaysWhen(std::function<bool()> isOver);

    /// What the event loop has to serve.
    std::vector<EventSource*> eventSources();

  private:
    struct Parts;
    explicit Backends(std::unique_ptr<Parts> parts);

    std::unique_ptr<Parts> m_parts;
};
