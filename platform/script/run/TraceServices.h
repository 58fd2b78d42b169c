// SPDX-License-Identifier: MIT
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

#include "platform/script/run/MachineServices.h"

namespace script {

/// A text as JSON.
std::string jsonText(std::string_view text);

/// Prints what would be done to the desktop, one JSON array a line: ["beep",1]  ["clipboard","text"]. The
/// clipboard holds what was put there. Every application is taken to be open, and
/// in front is the one that was brought there last, or one called "Application": what a script does where it
/// runs as it is meant to is to be seen, on a machine that may not even have a display. Where all are asked
/// for, that is the one in front.
class TraceDesktop : public SilentDesktop {
  public:
    /// The stream outlives it.
    explicit TraceDesktop(std::ostream& out) : m_out(out) {}

    Result<void> beep(int count) override;
    Result<void> setClipboard(std::string_view text) override;
    bool hasApplication(std::string_view /*name*/) override { return true; }
    Result<void> activate(std::string_view name) override {
        m_front = name;
        return {};
    }
    Result<std::vector<std::string>> applications() override { return std::vector{m_front}; }
    bool isInFront(std::string_view name) override;

  private:
    std::ostream& m_out;
    std::string m_front = "Application";
};

/// Prints what would be asked, and presses the default button or else the last one:
/// ["dialog","text",["Cancel","OK"]]  ["alert","text",["OK"]]  ["list","text",["Ann","Bob"]]
/// ["notification","text"]
class TraceDialogs : public ScriptDialogs {
  public:
    /// The stream outlives it.
    explicit TraceDialogs(std::ostream& out) : m_out(out) {}

    Result<ScriptAnswer> ask(const ScriptDialog& dialog) override;
    Result<void> notify(const ScriptNotification& notification) override;

  private:
    ScriptAnswer choose(const ScriptDialog& dialog);

    std::ostream& m_out;
};

}  // namespace script
