// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>
#include <array>
#include <cstddef>
#include <string_view>

/// A check box of the preferences.
struct ToggleRow {
    /// Its key in the settings.
    const char* key = nullptr;
    /// With a mnemonic that no other control of the panel has; to be translated in this context.
    const char* title = nullptr;
    /// Its state until one is stored.
    bool initiallyOn = false;
};

inline constexpr const char* togglesContext = "Toggles";

/// All check boxes, in the order in which they are stored.
inline constexpr std::array toggleRows = {
    /// Whether runSplash() asks for a newer version. Shown and stored only in builds with the update check.
    ToggleRow{.key = "checkForUpdatesOnLaunch",
              .title = QT_TRANSLATE_NOOP("Toggles", "Check for &updates when Keyrill starts")},
    /// Whether there is a login item.
    ToggleRow{.key = "launchOnLogin", .title = QT_TRANSLATE_NOOP("Toggles", "Start Keyrill when I log &in")},
    /// Whether recordings keep taps and holds of modifiers (EngineState::recordsModifierKeys).
    ToggleRow{.key = "recordModifierKeys",
              .title = QT_TRANSLATE_NOOP("Toggles", "Record modifier &keys on their own")},
    /// Whether the history is there again at the next start (RecordingHistory::setKept).
    ToggleRow{.key = "keepHistory",
              .title = QT_TRANSLATE_NOOP("Toggles", "Keep the &history for the next start")},
    /// Whether the user has agreed to hot keys in his desktop's settings (HotKeys::setConsent). Shown and
    /// stored only where they need that; not stored before he has been asked (ConsentDesk).
    ToggleRow{.key = "writeHotKeys",
              .title = QT_TRANSLATE_NOOP("Toggles", "&Write hot keys into GNOME's settings")},
};

/// Where the key stands in toggleRows; another key does not compile.
consteval std::size_t toggleIndex(std::string_view key) {
    std::size_t index = 0;
    while (toggleRows.at(index).key != key) ++index;
    return index;
}
