// SPDX-License-Identifier: MIT
#include "platform/script/commands/Advice.h"

#include "platform/KeyCodes.h"
#include "platform/script/values/SourceForm.h"

namespace script {

std::string codeAdvice(std::uint32_t code) {
    if (keycode::isExtension(code)) {
        return "Key code " + std::to_string(code) + " is an extension, which only Keyrill plays.";
    }
    if ((code & ~keycode::choosers) == keycode::power || keycode::evdevFor(code)) return "";
    return noKeyAdvice(code);
}

std::string noKeyAdvice(std::uint32_t code) {
    return "Key code " + std::to_string(code) + " has no key; nothing is pressed.";
}

std::string modifierAdvice(const Modifier& modifier) {
    const std::string name = constantText(modifier);
    return "“" + name + "” is taken as “" + name + " down”.";
}

}  // namespace script
