// SPDX-License-Identifier: MIT
#include "platform/script/commands/Playing.h"

#include <string_view>
#include <utility>

#include "platform/KeyCodes.h"
#include "platform/Sentence.h"
#include "platform/Utf8.h"
#include "platform/script/commands/Advice.h"
#include "platform/script/source/ScriptError.h"
#include "platform/script/source/Wording.h"
#include "platform/script/values/Coercion.h"
#include "platform/script/values/SourceForm.h"

namespace script {
namespace {

constexpr std::int32_t maxKeyCode = 65535;
/// The power key under its extension code.
constexpr std::uint32_t evdevPower = 116;

bool isPower(std::uint32_t code) {
    const std::uint32_t base = keycode::baseOf(code);
    return base == keycode::power || base == keycode::evdevBase + evdevPower;
}

Sentence noCodeAdviceOf(const Value& value) {
    const std::string_view* text = value.text();
    return text == nullptr ? noCodeAdvice() : noCodeAdvice(*text);
}

/// Adds what `value` names: nothing for a key that does not exist, of a text each character's key.
Fallible<> addHeldKeys(CommandStage& stage, const Value& value, std::vector<HeldKey>& held) {
    if (const auto* constant = value.as<Modifier>()) {
        held.emplace_back(HeldModifier{constant->modifier});
        return {};
    }
    if (const std::string_view* text = value.text()) {
        for (std::string_view left = *text; !left.empty();) {
            const std::size_t length = firstCharacter(left).length;
            held.emplace_back(HeldText{std::string(left.substr(0, length))});
            left.remove_prefix(length);
        }
        return {};
    }
    auto code = keyCodeOf(value);
    if (!code) return std::move(code).error();
    const auto number = code.value();
    if (acceptCode(stage, number)) held.emplace_back(HeldCode{number});
    return {};
}

}  // namespace

Fallible<std::uint32_t> modifierMask(CommandStage& stage, const Value* given) {
    std::uint32_t mask = 0;
    if (given == nullptr) return mask;
    for (const Value& item : itemsOf(*given)) {
        Fallible<Value> value = resolved(item);
        if (!value) return std::move(value).error();
        const auto* constant = value.value().as<Modifier>();
        if (constant == nullptr) {
            Failure failure = cannotMake(value.value(), sentence("ScriptErrors", "modifier"));
            if (const std::string_view* text = value.value().text())
                failure.hint = quotedModifierAdvice(*text);
            return failure;
        }
        if (!constant->down) stage.warn(modifierAdvice(*constant));
        mask |= constant->modifier;
    }
    return mask;
}

Fallible<std::uint32_t> keyCodeOf(const Value& value) {
    const std::optional<std::int32_t> code = integerOf(value);
    if (!code || *code < 0 || *code > maxKeyCode) {
        Failure failure = cannotMake(value, code ? "key code" : "integer");
        failure.hint = code ? codeAdvice(*code) : noCodeAdviceOf(value);
        return failure;
    }
    if (isPower(static_cast<std::uint32_t>(*code))) {
        return Failure{errornumber::handlerFailed,
                       gotAnError("System Events",
                                  sentence("ScriptErrors", "the power key is never pressed by a script."))};
    }
    return static_cast<std::uint32_t>(*code);
}

bool acceptCode(CommandStage& stage, std::uint32_t code) {
    if (keycode::evdevFor(code)) return true;
    stage.warn(noKeyAdvice(code));
    return false;
}

Fallible<Value> hold(CommandStage& stage, const Value& keys, bool down) {
    std::vector<HeldKey> held;
    for (const Value& item : itemsOf(keys)) {
        Fallible<Value> value = resolved(item);
        if (!value) return std::move(value).error();
        auto added = addHeldKeys(stage, value.value(), held);
        if (!added) return std::move(added).error();
    }
    for (const HeldKey& key : held) {
        auto played = stage.play(
            [&](InjectionSession& session) { return down ? session.keyDown(key) : session.keyUp(key); });
        if (!played) return std::move(played).error();
    }
    return Value();
}

Fallible<Value> outcomeOf(Fallible<> step) {
    if (!step) return std::move(step).error();
    return Value();
}

Failure desktopFailure(const Error& error) {
    return {errornumber::handlerFailed, gotAnError("System Events", error.message), error.hint};
}

}  // namespace script
