// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "library/LibraryListener.h"
#include "platform/HotKeys.h"
#include "prefs/KeyCombo.h"

class MacroLibrary;

/// Why a macro cannot have its hot key.
struct HotKeyConflict {
    enum class With {
        shortcut,  ///< one of Keyrill's own has the combination, whether it works or not
        macro,     ///< another macro has it
        other,     ///< another program, or something else that the error tells
    };
    With with = With::other;
    /// Which shortcut: where it stands in shortcutRows (prefs/Shortcuts.h).
    std::size_t shortcut = 0;
    /// Which macro: its path.
    std::string macro = {};
    /// What the desktop says, where it is neither of these.
    std::optional<Error> error = {};

    friend bool operator==(const HotKeyConflict&, const HotKeyConflict&) = default;
};

/// What has become of a macro's hot key.
struct MacroHotKeyState {
    HotKeyStatus status = HotKeyStatus::unset;
    /// Set while it is refused.
    std::optional<HotKeyConflict> conflict = {};
    /// See HotKeyState::trigger.
    std::string trigger = {};

    friend bool operator==(const MacroHotKeyState&, const MacroHotKeyState&) = default;
};

/// The hot keys of macros, as the library has them.
///
/// Registered are those of the macros that are there, all that are new in one breath. A shortcut's
/// combination is never asked for, so that it is the shortcut's whenever that is registered anew; of two
/// macros with one combination the one that has it keeps it, else the one whose path comes first. A macro
/// that is renamed keeps its hot key without a moment in which it does not work.
class LibraryHotKeys : public LibraryListener {
  public:
    using Play = std::function<void(const std::string& path)>;

    /// Library and hot keys outlive this; the ids are from `firstId` on. `play` is called when a hot key
    /// comes up, unless hot keys are switched off.
    LibraryHotKeys(MacroLibrary& library, HotKeys& hotKeys, HotKeyId firstId, Play play);
    /// Gives all combinations free.
    ~LibraryHotKeys() override;
    LibraryHotKeys(const LibraryHotKeys&) = delete;
    LibraryHotKeys& operator=(const LibraryHotKeys&) = delete;

    /// Who is told the path of a macro whose state has changed; at most one.
    void observe(std::function<void(const std::string& path)> changed) { m_changed = std::move(changed); }

    MacroHotKeyState state(const std::string& path) const;
    /// Who of Keyrill's own has a combination, in control flags, other than the macro of that path; empty if
    /// nobody has. Whether another program has it shows when it is asked for.
    std::optional<HotKeyConflict> conflictOf(KeyCombo hotKey, const std::string& path) const;

    /// The path of a macro of the library that has the combination, in control flags, whether it works or
    /// not; the first of several, empty if there is none.
    std::string macroWith(KeyCombo hotKey) const;

    /// The combinations of shortcuts may have become others.
    void followShortcuts() { reconsider(); }

    void libraryChanged(const LibraryChanges& changes) override;

  private:
    /// Key code, and those of the modifiers (platform/Modifiers.h) that count.
    using Combination = std::pair<std::uint32_t, std::uint32_t>;
    struct Row {
        std::string path;
        Combination combination;
    };

    using Wishes = std::map<std::string, Combination>;
    /// Which macro gets which combination.
    using Claims = std::map<Combination, std::string>;

    static Combination combinationOf(KeyCombo hotKey);
    static std::optional<HotKeyConflict> shortcutWith(const Combination& combination);
    HotKeyConflict refusal(const HotKeyState& state) const;
    void rename(const std::vector<FolderChanges::Rename>& renamed);
    void reconsider();
    /// Of the macros that are there, by their paths.
    Wishes wishes() const;
    Claims claims(const Wishes& wishes) const;
    void withdrawOthersThan(const Claims& claims);
    void noteConflicts(const Wishes& wishes, const Claims& claims);
    void requestNew(const Claims& claims);
    /// Once all is done that is to be done.
    void tell(const std::string& path);
    void tellAll();

    MacroLibrary& m_library;
    HotKeys& m_hotKeys;
    HotKeyId m_nextId;
    Play m_play;
    std::function<void(const std::string& path)> m_changed;
    /// What is asked for.
    std::map<HotKeyId, Row> m_rows;
    std::map<std::string, HotKeyId> m_idOfPath;
    /// Of those that are not asked for, by their paths.
    std::map<std::string, HotKeyConflict> m_conflicts;
    std::set<std::string> m_untold;
    bool m_isBusy = false;
};
