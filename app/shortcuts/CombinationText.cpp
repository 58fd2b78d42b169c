// SPDX-License-Identifier: MIT
#include "app/shortcuts/CombinationText.h"

#include <QCoreApplication>
#include <array>

#include "core/KeyNames.h"
#include "platform/Modifiers.h"

namespace {

struct ModifierName {
    std::uint32_t flag;
    const char* name;
};

constexpr std::array<ModifierName, 4> modifierNames = {
    {{controlflag::control, QT_TRANSLATE_NOOP("CombinationText", "Ctrl")},
     {controlflag::option, QT_TRANSLATE_NOOP("CombinationText", "Alt")},
     {controlflag::shift, QT_TRANSLATE_NOOP("CombinationText", "Shift")},
     {controlflag::command, QT_TRANSLATE_NOOP("CombinationText", "Super")}}};

}  // namespace

QString modifiersText(std::uint32_t flags) {
    QString text;
    for (const auto& [flag, name] : modifierNames) {
        if ((flags & flag) != 0) text += QCoreApplication::translate("CombinationText", name) + u'+';
    }
    return text;
}

QString combinationText(KeyCombo keyCombo) {
    if (keyCombo.code == -1) return {};
    return modifiersText(keyCombo.flags) + QString::fromStdString(keyNameForKeyCode(keyCombo.code));
}
