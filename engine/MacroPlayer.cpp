// SPDX-License-Identifier: MIT
#include "engine/MacroPlayer.h"

#include <algorithm>
#include <limits>
#include <string>
#include <utility>

#include "core/MacroManager.h"
#include "engine/AppleScript.h"
#include "engine/EngineState.h"
#include "engine/SharedController.h"
#include "platform/Clock.h"
#include "platform/EventMonitor.h"
#include "platform/ScriptingService.h"
#include "platform/Services.h"
#include "prefs/PreferenceManager.h"

namespace {

constexpr Clock::Seconds pauseAfterRun{0.01};

/// Makes what was recorded the current macro and files it, if there is anything.
void keepRecording(const boost::shared_ptr<Macro>& macro) {
    // There is no macro in a recording that was cancelled at its start; it ends as an empty one.
    if (!macro || macro->isEmpty()) return;
    engineState().currentMacro = macro;
    if (SharedController* controller = sharedController()) controller->addMacro(macro);
}

bool isDigit(char character) { return character >= '0' && character <= '9'; }

}  // namespace

void toggleRecording() {
    EngineState& state = engineState();
    if (state.recording) {
        stopRecording();
        return;
    }
    if (const Result<void> shown = services().eventMonitor.showsKeys(); !shown) {
        if (SharedController* controller = sharedController()) controller->cannotRecord(shown.error());
        return;
    }
    state.recording = true;
    state.recordingMacro = MacroManager::createMacro();
    state.recordedPauses = {};
    state.modifierHolds = {};
    services().eventMonitor.setShowsModifierKeys(state.recordsModifierKeys);
    services().eventMonitor.setRecording(true);
    if (SharedController* controller = sharedController()) controller->showRecordingGui();
    utils::PreferenceManager::clearMarks();
}

void stopRecording() {
    EngineState& state = engineState();
    if (!state.recording) return;
    state.recording = false;
    services().eventMonitor.setRecording(false);
    keepRecording(state.recordingMacro);
    state.recordingMacro.reset();
    if (SharedController* controller = sharedController()) controller->hideRecordingGui();
    utils::PreferenceManager::clearMarks();
}

void cancelRecording() { engineState().recordingMacro.reset(); }

void requestPlay(std::uint32_t count) {
    EngineState& state = engineState();
    state.playPending = true;
    state.pendingRequest.reset();
    state.pendingPlayCount = count;
    utils::PreferenceManager::clearMarks();
    playPending();
}

void requestPlay(PlayRequest request) {
    EngineState& state = engineState();
    state.playPending = true;
    state.pendingRequest = std::move(request);
    playPending();
}

void playPending() {
    EngineState& state = engineState();
    if (state.modifiersDown || !state.playPending) return;
    state.playPending = false;
    if (const auto request = std::exchange(state.pendingRequest, std::nullopt)) {
        if (request->begins) request->begins();
        playScript(request->script, request->options);
    } else if (state.currentMacro) {
        playTimes(1);
    }
}

void promptMultiplePlay() {
    if (SharedController* controller = sharedController()) controller->showMultiplePlayGui();
    utils::PreferenceManager::clearMarks();
}

void setCurrentMacro(const boost::shared_ptr<Macro>& macro) {
    engineState().currentMacro = macro;
    if (SharedController* controller = sharedController()) controller->currentMacroChanged();
}

void playTimes(std::int32_t count) {
    // Taken once: whatever becomes of the current macro meanwhile, all runs play the same text.
    const std::string script = engineState().currentMacro->script();
    playScript(script, {.times = {count}});
}

void playScript(const std::string& script, const PlayOptions& options) {
    ScriptingService& scripting = services().scripting;
    scripting.startPlayback();
    const auto isLast = [&] {
        return scripting.isCancelled() || (!options.times.count && scripting.hasFailed());
    };
    for (std::int64_t runs = 0; options.times.goOnAfter(runs); ++runs) {
        AppleScript::runAppleScript(script, options.speed);
        if (isLast()) break;
        services().clock.sleepFor(pauseAfterRun);
    }
    if (SharedController* controller = sharedController()) controller->playbackEnded();
}

std::int32_t playCountFromText(std::string_view text) {
    constexpr std::int64_t beyondRange = std::int64_t{std::numeric_limits<std::int32_t>::max()} + 1;
    text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) text.remove_prefix(1);
    std::int64_t number = 0;
    for (; !text.empty() && isDigit(text.front()); text.remove_prefix(1)) {
        number = std::min(number * 10 + (text.front() - '0'), beyondRange);
    }
    if (negative) number = -number;
    return static_cast<std::int32_t>(std::min(number, beyondRange - 1));
}
