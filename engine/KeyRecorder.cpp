// SPDX-License-Identifier: MIT
#include "engine/KeyRecorder.h"

#include <algorithm>
#include <bit>
#include <string>

#include "core/Delay.h"
#include "core/HeldModifier.h"
#include "core/KeyCode.h"
#include "core/KeyNames.h"
#include "engine/EngineState.h"
#include "engine/HotKeyCenter.h"
#include "engine/MacroPlayer.h"
#include "engine/SharedController.h"
#include "platform/Clock.h"
#include "platform/EventMonitor.h"
#include "platform/Services.h"

namespace {

bool isSmallLetter(char character) { return character >= 'a' && character <= 'z'; }

char toSmallLetter(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

/// What a key press shows as: its key's name, but as typed for small letters and the space.
std::string shownName(const KeyEvent& event) {
    std::string name = keyNameForKeyCode(static_cast<short>(event.keyCode));
    if (event.character == ' ') return " ";
    if (isSmallLetter(event.character)) std::transform(name.begin(), name.end(), name.begin(), toSmallLetter);
    return name;
}

/// Adds the action to the macro being recorded and shows the macro.
void append(const boost::shared_ptr<Action>& action) {
    const boost::shared_ptr<Macro> macro = engineState().recordingMacro;
    macro->addAction(action);
    if (SharedController* controller = sharedController()) {
        controller->setMacroString(macro->fullDisplayText());
    }
    restartLastEventTime();
}

/// The one that the user has asked to have kept, if any.
void addPauseBefore(const KeyEvent& event) {
    EngineState& state = engineState();
    const auto pause = state.recordedPauses.before(event.time, state.pauseChoice);
    if (pause) state.recordingMacro->addAction(createDelay(*pause));
}

void handleKeyPress(const KeyEvent& event) {
    // The name is asked for also when nothing is recorded.
    const std::string name = shownName(event);
    const EngineState& state = engineState();
    if (!state.recordingMacro) return;
    const auto action = createKeyCode(event.keyCode, name, event.character);
    // Not the event's own mask: what counts is what the last modifier change said.
    action->setModifiers(state.currentModifiers);
    addPauseBefore(event);
    engineState().modifierHolds.addKey(state.recordingMacro->actionCount(), state.currentModifiers);
    append(action);
}

/// The hold of one modifier over several keys becomes an action before the first and one behind the last.
void recordHold(const ModifierHold& hold, const KeyEvent& release) {
    using Move = actionpack::HeldModifier::Move;
    EngineState& state = engineState();
    state.recordingMacro->insertAction(hold.firstKey, createHeldModifier(hold.modifiers, Move::down));
    state.modifierHolds.insertedAt(hold.firstKey);
    state.recordedPauses.addAction();
    addPauseBefore(release);
    append(createHeldModifier(hold.modifiers, Move::up));
}

void handleModifierKeyUp(const KeyEvent& event) {
    EngineState& state = engineState();
    const auto hold = state.modifierHolds.release(event);
    if (!hold || !state.recordingMacro) return;
    if (hold->isTapUntil(event.time)) {
        addPauseBefore(event);
        append(createKeyCode(event.keyCode, keyNameForKeyCode(static_cast<short>(event.keyCode)), 0));
    } else if (hold->isOverKeys() && std::has_single_bit(hold->modifiers)) {
        recordHold(*hold, event);
    }
}

void handleModifiersChanged(std::uint32_t modifiers) {
    EngineState& state = engineState();
    state.currentModifiers = modifiers;
    state.modifiersDown = modifiers != 0;
    playPending();
}

}  // namespace

void installKeyRecorder() {
    static_cast<void>(services().eventMonitor.install(handleKeyEvent));
    registerHotKeys();
}

void handleKeyEvent(const KeyEvent& event) {
    switch (event.kind) {
        case KeyEventKind::keyDown:
        case KeyEventKind::autoRepeat:
            handleKeyPress(event);
            break;
        case KeyEventKind::modifiersChanged:
            handleModifiersChanged(event.modifiers);
            break;
        case KeyEventKind::modifierKeyDown:
            engineState().modifierHolds.press(event);
            break;
        case KeyEventKind::modifierKeyUp:
            handleModifierKeyUp(event);
            break;
        case KeyEventKind::keyUp:
            break;
    }
}

void saveDelayToNow() {
    const auto& last = engineState().lastEventTime;
    if (!last) return;
    const double seconds = Clock::Seconds(services().clock.now() - *last).count();
    engineState().recordedPauses.addByHand(seconds);
    append(createDelay(seconds));
}

void restartLastEventTime() { engineState().lastEventTime = services().clock.now(); }
