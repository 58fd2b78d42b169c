// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <array>

#include "library/LibraryHotKeys.h"
#include "platform/HotKeys.h"
#include "prefs/KeyCombo.h"
#include "prefs/Shortcuts.h"

/// A shortcut, as its field and the hot-key registry have it.
struct ShortcutFacts {
    /// What the field holds.
    KeyCombo field;
    /// What was asked of the registry last, in control flags.
    KeyCombo asked;
    /// What became of that.
    HotKeyState state;
    /// The name of a macro that has the combination too; empty for none.
    QString macro = {};
};

/// In the order of shortcutRows.
using AllShortcutFacts = std::array<ShortcutFacts, shortcutRows.size()>;
using ShortcutNoticeTexts = std::array<QString, shortcutRows.size()>;

/// What stands beside each field, empty for nothing: why a combination does not work; that one which was
/// cleared goes on working; which cleared one another has to wait for.
ShortcutNoticeTexts shortcutNotices(const AllShortcutFacts& facts);

/// The same of a macro's hot key.
QString macroHotKeyNotice(const MacroHotKeyState& state);
