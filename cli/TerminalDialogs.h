// SPDX-License-Identifier: MIT
#pragma once

#include "platform/KeyInjector.h"
#include "platform/ScriptDialogs.h"

/// Asks on the terminal that the program runs in, in lines of text; without one nobody can be asked.
///
///   Go on?
///   1 Cancel   2 OK (Return)
///   >
///
/// Of a list to choose from the numbers are typed, with blanks between them; 0 is the cancel button.
///
/// A number or the name of a button presses it; an empty line the default button. Where an answer is asked
/// for, it stands on a line of its own before, and is not to be seen if it is hidden. The end of input is the
/// cancel button; without one, and when the user asks to stop, the playback is stopped. The run leaves the
/// keyboard to the user meanwhile.
class TerminalDialogs : public ScriptDialogs {
  public:
    /// The injector outlives the object.
    explicit TerminalDialogs(KeyInjector& injector) : m_injector(injector) {}

    Result<ScriptAnswer> ask(const ScriptDialog& dialog) override;
    Result<void> notify(const ScriptNotification& notification) override;

  private:
    class Question;

    KeyInjector& m_injector;
};
