// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <boost/smart_ptr/shared_ptr.hpp>
#include <cstdint>
#include <string>
#include <string_view>

#include "engine/PlayRequest.h"
#include "platform/PlayOptions.h"

class Macro;

// The commands, whether they come from a hot key or from the menu. None of them tells the user anything.
//
// | state     | command                  | what happens                              | next state |
// | idle      | toggleRecording          | a new macro, showRecordingGui             | recording  |
// | idle      | - where no keys are shown | cannotRecord                             | idle       |
// | idle      | stopRecording            | nothing                                   | idle       |
// | recording | toggle- or stopRecording | a macro with actions becomes the current  | idle       |
// |           |                          | one; hideRecordingGui                     |            |
// | any       | requestPlay              | plays once, now or when the last modifier | unchanged  |
// |           |                          | key goes up                               |            |
// | any       | promptMultiplePlay       | showMultiplePlayGui                       | unchanged  |
// | any       | playTimes                | plays now                                 | unchanged  |

/// Starts a recording, or ends the one in progress.
void toggleRecording();

/// Ends the recording in progress. One without actions is dropped, and the current macro stays.
void stopRecording();

/// Forgets what is being recorded, while the recording itself goes on until it is stopped: the user has left
/// it for the download page.
void cancelRecording();

/// Plays the current macro once as soon as no modifier key is down; nothing without one. Requests that wait
/// do not add up. `count` is noted and has no effect.
void requestPlay(std::uint32_t count);

/// The same with a script, which is no macro: of all requests that wait the last one counts.
void requestPlay(PlayRequest request);

/// Plays what was requested, unless a modifier key is down; nothing if nothing waits.
void playPending();

/// Asks how many times to play.
void promptMultiplePlay();

/// What the hot key of that name does.
struct Command {
    std::string_view name;
    /// What a press and a release do; one of them is null, which is nothing.
    void (*pressed)() = nullptr;
    void (*released)() = nullptr;
    /// Whether a press during a playback also ends it.
    bool cancelsPlayback = false;
    /// Whether it plays: a stop discards those that wait.
    bool startsPlayback = false;
};

/// A command for each shortcut (prefs/Shortcuts.h).
inline constexpr std::array commandRows = {
    Command{.name = "record", .pressed = toggleRecording},
    Command{.name = "stop", .pressed = stopRecording, .cancelsPlayback = true},
    Command{.name = "play", .released = [] { requestPlay(1); }, .startsPlayback = true},
    Command{.name = "multiplePlay", .pressed = promptMultiplePlay},
};

/// Makes it what play commands play and tells the user interface; null for none.
void setCurrentMacro(const boost::shared_ptr<Macro>& macro);

/// Plays the current macro so often, none for 0 and below, with 0.01 s after each run. Returns after the last
/// run, or after the one in which the user has asked to stop. Ends the process if there is no current macro.
void playTimes(std::int32_t count);

/// Plays a script text so often and so fast, with 0.01 s after each run, whatever the current macro is, which
/// stays. Returns after the last run, or after the one in which the user has asked to stop; without a number
/// of times also after one that failed.
void playScript(const std::string& script, const PlayOptions& options);

/// The number that a text begins with: blanks, a sign, digits, cut to the range of the type ("2x" is 2).
/// Anything else is 0. Independent of the locale.
std::int32_t playCountFromText(std::string_view text);
