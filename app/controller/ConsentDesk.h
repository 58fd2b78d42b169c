// SPDX-License-Identifier: MIT
#pragma once

class Dialogs;
class HotKeys;
class SettingsStore;
class ToggleModel;

/// Asks the user once whether hot keys may be written into his desktop's settings, where they can be had in
/// no other way. Yes and no are kept, and his to change in the preferences; whoever wishes to decide later is
/// asked again at the next start.
class ConsentDesk {
  public:
    /// All outlive the desk; `toggle` is the box of the preferences.
    ConsentDesk(SettingsStore& store, HotKeys& hotKeys, Dialogs& dialogs, ToggleModel& toggle);

    /// Returns with the answer, which is stored and holds already; nothing where there is nothing to ask.
    void ask();

  private:
    bool isToBeAsked() const;

    SettingsStore& m_store;
    HotKeys& m_hotKeys;
    Dialogs& m_dialogs;
    ToggleModel& m_toggle;
};
