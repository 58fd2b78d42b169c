// SPDX-License-Identifier: MIT
#include "app/overlay/LayerKeys.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/Modifiers.h"

namespace {

/// Symbols of keysymdef.h that type nothing, and what the keypad types.
constexpr std::array<std::pair<std::uint32_t, Qt::Key>, 28> functionKeys = {{
    {0xff08, Qt::Key_Backspace}, {0xff09, Qt::Key_Tab},    {0xfe20, Qt::Key_Backtab},
    {0xff0d, Qt::Key_Return},    {0xff8d, Qt::Key_Enter},  {0xff1b, Qt::Key_Escape},
    {0xffff, Qt::Key_Delete},    {0xff9f, Qt::Key_Delete}, {0xff63, Qt::Key_Insert},
    {0xff9e, Qt::Key_Insert},    {0xff50, Qt::Key_Home},   {0xff95, Qt::Key_Home},
    {0xff57, Qt::Key_End},       {0xff9c, Qt::Key_End},    {0xff51, Qt::Key_Left},
    {0xff96, Qt::Key_Left},      {0xff53, Qt::Key_Right},  {0xff98, Qt::Key_Right},
    {0xff52, Qt::Key_Up},        {0xff97, Qt::Key_Up},     {0xff54, Qt::Key_Down},
    {0xff99, Qt::Key_Down},      {0xff55, Qt::Key_PageUp}, {0xff56, Qt::Key_PageDown},
    {0xffe1, Qt::Key_Shift},     {0xffe2, Qt::Key_Shift},  {0xffe3, Qt::Key_Control},
    {0xffe9, Qt::Key_Alt},
}};

int keyOf(const LayerKey& key) {
    const auto* const row = std::find_if(functionKeys.begin(), functionKeys.end(),
                                         [&](const auto& one) { return one.first == key.symbol; });
    if (row != functionKeys.end()) return row->second;
    return key.character == 0 ? Qt::Key_unknown : static_cast<int>(QChar::toUpper(key.character));
}

Qt::KeyboardModifiers modifiersOf(std::uint32_t masks) {
    Qt::KeyboardModifiers held = Qt::NoModifier;
    held.setFlag(Qt::ShiftModifier, (masks & modifier::shift) != 0);
    held.setFlag(Qt::ControlModifier, (masks & modifier::control) != 0);
    held.setFlag(Qt::AltModifier, (masks & modifier::option) != 0);
    held.setFlag(Qt::MetaModifier, (masks & modifier::command) != 0);
    return held;
}

}  // namespace

QKeyEvent keyEventOf(const LayerKey& key, bool isRepeat) {
    return {key.isPress ? QEvent::KeyPress : QEvent::KeyRelease, keyOf(key), modifiersOf(key.modifiers),
            QString::fromStdString(key.text), isRepeat};
}
