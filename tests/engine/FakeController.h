// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/Macro.h"
#include "engine/KeyRecorder.h"
#include "engine/MacroPlayer.h"
#include "engine/SharedController.h"
#include "platform/fake/Journal.h"

/// A user interface in memory.
class FakeController : public SharedController {
  public:
    using Messages = Journal::Lines;

    explicit FakeController(Journal& journal) : m_journal(journal) {}

    void setMacroString(const std::string& text) override {
        m_overlayText = text;
        m_journal.note("setMacroString", text);
    }
    void showRecordingGui() override {
        note("showRecordingGui");
        if (m_followsUpdateNotice) {
            cancelRecording();
            return;
        }
        m_overlayText.clear();
        restartLastEventTime();
    }
    void hideRecordingGui() override { note("hideRecordingGui"); }
    void cannotRecord(const Error& why) override { m_journal.note("cannotRecord", why.message.text()); }
    void showMultiplePlayGui() override { note("showMultiplePlayGui"); }
    void currentMacroChanged() override { m_journal.note("currentMacroChanged"); }
    void addMacro(const boost::shared_ptr<Macro>& macro) override {
        m_history.push_back(macro);
        m_journal.note("addMacro", macro->displayText());
    }

    /// What happens while a window is shown or hidden.
    void duringEachChange(std::function<void()> hook) { m_hook = std::move(hook); }
    /// Whether the user answers the update notice at the start of a recording by going to the download page.
    void setFollowsUpdateNotice(bool follows) { m_followsUpdateNotice = follows; }

    /// Everything the engine said, in order, as the journal has it.
    Messages messages() const {
        return m_journal.of({"setMacroString", "showRecordingGui", "hideRecordingGui", "showMultiplePlayGui",
                             "cannotRecord", "addMacro", "currentMacroChanged"});
    }
    const std::string& overlayText() const { return m_overlayText; }
    const std::vector<boost::shared_ptr<Macro>>& history() const { return m_history; }

  private:
    void note(const char* message) {
        m_journal.note(message);
        if (m_hook) m_hook();
    }

    Journal& m_journal;
    std::function<void()> m_hook;
    bool m_followsUpdateNotice = false;
    std::string m_overlayText;
    std::vector<boost::shared_ptr<Macro>> m_history;
};
