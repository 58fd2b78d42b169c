// SPDX-License-Identifier: MIT
#pragma once

#include <boost/smart_ptr/shared_ptr.hpp>
#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "core/Macro.h"
#include "engine/ModifierHolds.h"
#include "engine/PlayRequest.h"
#include "engine/RecordedPauses.h"
#include "platform/Clock.h"
#include "platform/HotKeys.h"
#include "prefs/PauseChoice.h"

/// What hot keys, commands and recorder share. Main thread only.
struct EngineState {
    /// Hot keys act only while set; they stay registered. Menu commands do not look at it.
    bool hotKeysEnabled = true;
    /// Whether some modifier key is down, as of the last modifier change.
    bool modifiersDown = false;
    /// A play waits for all modifier keys to be up.
    bool playPending = false;
    bool recording = false;
    /// What the pending play plays; empty for what is the current macro by then.
    std::optional<PlayRequest> pendingRequest;
    /// The count of the last play request. Nothing reads it: a request plays once.
    std::uint32_t pendingPlayCount = 1;
    /// The mask of the last modifier change, as delivered (platform/Modifiers.h).
    std::uint32_t currentModifiers = 0;
    /// What the next saved pause is measured from; empty until the first recording, kept after it.
    std::optional<Clock::Time> lastEventTime;
    /// Empty while nothing is recorded, and in a recording that was cancelled at its start.
    boost::shared_ptr<Macro> recordingMacro;
    /// Whether recordings keep taps of modifier keys alone, and their holds over several keys.
    bool recordsModifierKeys = false;
    /// Which pauses recordings keep.
    PauseChoice pauseChoice;
    /// Of the recording in progress.
    RecordedPauses recordedPauses;
    ModifierHolds modifierHolds;
    /// How the user knows the hot keys, by their ids, for a desktop that shows them to him; may be empty.
    std::map<HotKeyId, std::string> hotKeyTitles;
    /// What play commands play; also set from the history and from macro files.
    boost::shared_ptr<Macro> currentMacro;
};

/// The one state of the process. Tests put a fresh one in its place by assignment.
EngineState& engineState();
