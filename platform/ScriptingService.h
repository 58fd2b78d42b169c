// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "platform/PlayOptions.h"
#include "platform/Result.h"

/// The largest script that can be played, in bytes of UTF-8.
inline constexpr std::size_t largestScript = std::size_t{16} << 20U;

/// Why a script does not do what it says.
struct ScriptFailure {
    /// Whether it could begin; one that does not compile cannot.
    bool hasBegun = false;
    /// The line at fault, from 1.
    std::uint32_t line = 1;
    Error error;

    friend bool operator==(const ScriptFailure&, const ScriptFailure&) = default;
};

/// Compiles and runs script text. Runs are synchronous and report nothing: an error ends the run as if it had
/// succeeded. Who wants to know asks afterwards.
class ScriptingService {
  public:
    virtual ~ScriptingService() = default;

    /// Why the text does not compile; empty if it does. Nothing is run.
    virtual std::optional<ScriptFailure> check(const std::string& source) = 0;

    /// A play command of one or more runs starts: forgets an earlier wish to stop, and earlier failures.
    virtual void startPlayback() = 0;

    /// Compiles the text afresh and runs it to its end, its pauses divided by the speed
    /// (platform/PlayOptions.h). Called while a run lasts, it does nothing.
    virtual void runAtSpeed(const std::string& source, double speed) = 0;
    void run(const std::string& source) { runAtSpeed(source, playspeed::usual); }

    /// Whether the user has asked to end the playback since it started.
    virtual bool isCancelled() = 0;

    /// Whether a run has failed since the playback started, and nobody has taken the failure.
    virtual bool hasFailed() const = 0;

    /// The first failure of a run since the playback started, which is forgotten then. Empty if there was
    /// none; that a run was cancelled is none.
    virtual std::optional<ScriptFailure> takeFailure() = 0;
};
