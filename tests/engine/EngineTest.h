// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/KeyCode.h"
#include "core/MacroManager.h"
#include "engine/EngineState.h"
#include "platform/Services.h"
#include "platform/fake/FakePlatform.h"
#include "prefs/PreferenceManager.h"
#include "prefs/Settings.h"
#include "prefs/Shortcuts.h"

/// The engine on the fake platform, with all state of the process fresh before and after.
class EngineTest : public testing::Test {
  public:
    ~EngineTest() override { reset(); }

  protected:
    EngineTest() { reset(); }

    FakePlatform& platform() { return m_platform; }
    EngineState& state() { return engineState(); }

    void setHotKey(const std::string& name, std::int16_t code, std::uint32_t flags) {
        utils::PreferenceManager::setCode(name, code);
        utils::PreferenceManager::setFlags(name, flags);
    }

    /// A macro that plays the text, as loaded from a file.
    static boost::shared_ptr<Macro> macroWithScript(const std::string& script) {
        auto macro = MacroManager::createMacro();
        macro->setScript(script);
        return macro;
    }

    /// All texts that were run, in order.
    const std::vector<std::string>& runs() const { return m_platform.scripting.runs(); }

    /// What was asked of the hot keys, in order.
    Journal::Lines hotKeyCalls() const { return m_platform.journal.of({"request", "withdraw"}); }

    /// What puts a shortcut's hot key in place of the one that it had; the combination in `modifier` bits.
    static void noteRegistration(Journal& journal, const ShortcutRow& row, KeyCombo hotKey) {
        journal.note("withdraw", row.id);
        journal.note("request", row.id, row.name, hotKey.code, Journal::mask(hotKey.flags));
    }
    /// As the program comes with it, in `modifier` bits.
    static KeyCombo presetHotKey(const ShortcutRow& row) {
        return {.flags = hotKeyFlags(row.preset.flags), .code = row.preset.code};
    }

    /// The preference table is marked, so that the next clearMarks() is seen.
    static void markTable() { utils::PreferenceManager::setMarked("record", true); }
    static bool tableIsMarked() { return utils::PreferenceManager::isMarked("record"); }

  private:
    static void reset() {
        engineState() = EngineState{};
        MacroManager::instance().reset();
        utils::PreferenceManager::instance().reset();
    }

    FakePlatform m_platform;
    ServicesScope m_services{m_platform.services};
};
