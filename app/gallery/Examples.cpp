// SPDX-License-Identifier: MIT
#include "app/gallery/Examples.h"

#include <QtGlobal>
#include <map>
#include <utility>

#include "app/program/Backends.h"
#include "app/program/StartUp.h"
#include "core/Delay.h"
#include "core/Macro.h"
#include "core/MacroManager.h"
#include "engine/EngineState.h"
#include "engine/KeyRecorder.h"
#include "platform/Modifiers.h"
#include "platform/Services.h"

namespace {

/// Of a US keyboard (platform/KeyCodes.h).
std::uint32_t keyCodeOf(char character) {
    static const std::map<char, std::uint32_t> codes = {
        {'a', 0},  {'b', 11}, {'c', 8},  {'d', 2},   {'e', 14}, {'f', 3},  {'g', 5},  {'h', 4},
        {'i', 34}, {'j', 38}, {'k', 40}, {'l', 37},  {'m', 46}, {'n', 45}, {'o', 31}, {'p', 35},
        {'q', 12}, {'r', 15}, {'s', 1},  {'t', 17},  {'u', 32}, {'v', 9},  {'w', 13}, {'x', 7},
        {'y', 16}, {'z', 6},  {' ', 49}, {'\t', 48}, {'\n', 36}};
    const auto found = codes.find(character);
    if (found == codes.end()) qFatal("no key types that");
    return found->second;
}

void press(char typed, std::uint32_t modifiers) {
    const bool isCapital = typed >= 'A' && typed <= 'Z';
    const char small = isCapital ? static_cast<char>(typed - 'A' + 'a') : typed;
    if (isCapital) modifiers |= modifier::shift;
    handleKeyEvent({.kind = KeyEventKind::modifiersChanged, .modifiers = modifiers});
    handleKeyEvent({.kind = KeyEventKind::keyDown,
                    .keyCode = keyCodeOf(small),
                    .character = typed < ' ' ? '\0' : typed,
                    .modifiers = modifiers});
    handleKeyEvent({.kind = KeyEventKind::modifiersChanged});
}

}  // namespace

boost::shared_ptr<Macro> recordedMacro(const std::string& keys) {
    boost::shared_ptr<Macro> macro = MacroManager::createMacro();
    engineState().recordingMacro = macro;
    std::uint32_t modifiers = 0;
    for (const char key : keys) {
        if (key == '~') {
            constexpr double pause = 0.5;
            macro->addAction(createDelay(pause));
        } else if (key == '^' || key == '@') {
            modifiers = key == '^' ? modifier::control : modifier::command;
        } else {
            press(key, std::exchange(modifiers, 0));
        }
    }
    engineState().recordingMacro.reset();
    return macro;
}

HotKeyState refusedHotKey() {
    const HotKeyRequest wish{.id = 3,
                             .name = "play",
                             .keyCode = keyCodeOf('p'),
                             .modifiers = modifier::control | modifier::command};
    HotKeys& ours = services().hotKeys;
    const auto session = enterSession();
    const auto otherProgram = Backends::open(session.value());
    otherProgram.value()->services().hotKeys.request(wish);
    ours.request(wish);
    HotKeyState state = ours.state(wish.id);
    ours.withdraw(wish.id);
    if (!state.error) qFatal("the hot key is not refused");
    return state;
}
