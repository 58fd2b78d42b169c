// SPDX-License-Identifier: MIT
#include "engine/AppleScript.h"

#include "engine/EngineState.h"
#include "platform/EventMonitor.h"
#include "platform/ScriptingService.h"
#include "platform/Services.h"

// NOLINTNEXTLINE(performance-unnecessary-value-param): a run has a text of its own.
void AppleScript::runAppleScript(std::string text, double speed) {
    services().eventMonitor.setKeepsOwnStrokes(engineState().recordingMacro != nullptr);
    services().scripting.runAtSpeed(text, speed);
}
