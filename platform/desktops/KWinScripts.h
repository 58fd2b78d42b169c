// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string>

#include "platform/Result.h"
#include "platform/desktops/SessionBus.h"

/// Small scripts that KWin runs for us (its scripting interface on the session bus), and what they tell.
///
/// KWin keeps none that is run: each takes itself out when it has run. One that this process, killed at the
/// wrong moment, has left loaded goes with the next.
class KWinScripts {
  public:
    /// Whether a KWin on that bus runs scripts.
    static bool isThere(const SessionBus& bus);

    /// On a connection of its own to the bus of that address.
    explicit KWinScripts(const std::string& bus);
    ~KWinScripts();
    KWinScripts(const KWinScripts&) = delete;
    KWinScripts& operator=(const KWinScripts&) = delete;

    /// Runs statements of JavaScript, which call tell(text) once, and gives that text; waits for it for two
    /// seconds at the most.
    Result<std::string> run(const std::string& statements);
    /// Has KWin follow what happens by these statements as long as this object is there, in place of those
    /// that were kept before.
    Result<void> keep(const std::string& statements);

  private:
    /// Gives what they have told. `script` is what KWin calls it; it ends with `end`.
    Result<std::string> start(const std::string& statements, const char* script, const std::string& end);
    Result<void> load(const std::string& file, const char* script);
    /// Whether KWin could be asked.
    bool unload(const char* script);
    Result<std::string> await();
    void updateUntil(std::chrono::steady_clock::time_point end);

    SessionBus m_bus;
    std::string m_told;
    bool m_hasTold = false;
    bool m_keeps = false;
};
