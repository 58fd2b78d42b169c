// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <cstddef>

/// How a shortcut is called on the screen.
struct ShortcutTitles {
    /// Beside its field, with a mnemonic that no other control of the preferences has.
    QString label;
    /// Its command, as the menu has it too.
    QString command;
};

/// Of the shortcut with that index in shortcutRows, in the user's language.
ShortcutTitles shortcutTitles(std::size_t index);
