// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "core/Macro.h"
#include "engine/KeyRecorder.h"
#include "engine/MacroPlayer.h"
#include "engine/SharedController.h"

/// A user interface in memory.
class FakeController : public SharedController {
  public:
    using Messages = std::vector<std::string>;

    void setMacroString(const std::string& text) override {
        m_overlayText = text;
        m_messages.push_back("setMacroString " + text);
    }
    void showRecordingGui() override {
        m_messages.emplace_back("showRecordingGui");
        if (m_followsUpdateNotice) {
            cancelRecording();
            return;
        }
        m_overlayText.clear();
        restartLastEventTime();
    }
    void hideRecordingGui() override { m_messages.emplace_back("hideRecordingGui"); }
    void showMultiplePlayGui() override { m_messages.emplace_back("showMultiplePlayGui"); }
    void addMacro(const boost::shared_ptr<Macro>& macro) override {
        m_history.push_back(macro);
        m_messages.push_back("addMacro " + macro->displayText());
    }

    /// Whether the user answers the update notice at the start of a recording by going to the download page.
    void setFollowsUpdateNotice(bool follows) { m_followsUpdateNotice = follows; }

    /// Everything the engine said, in order.
    const Messages& messages() const { return m_messages; }
    /// The same, forgotten afterwards.
    Messages takeMessages() { return std::exchange(m_messages, {}); }
    const std::string& overlayText() const { return m_overlayText; }
    const std::vector<boost::shared_ptr<Macro>>& history() const { return m_history; }

  private:
    bool m_followsUpdateNotice = false;
    Messages m_messages;
    std::string m_overlayText;
    std::vector<boost::shared_ptr<Macro>> m_history;
};
