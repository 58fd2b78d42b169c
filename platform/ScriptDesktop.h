// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Result.h"

/// What a script asks of the desktop beside keys and dialogs.
class ScriptDesktop {
  public:
    virtual ~ScriptDesktop() = default;

    /// Sounds the bell; `count` is 1 to 100. Does not wait for the sound's end.
    virtual Result<void> beep(int count) = 0;

    /// UTF-8. A paste that is typed right afterwards finds the text.
    virtual Result<void> setClipboard(std::string_view text) = 0;
    /// The text in the clipboard; empty if there is none.
    virtual Result<std::string> clipboard() = 0;

    /// Whether a window of the application is open. The name is that of the program or the window's class, in
    /// any case.
    virtual bool hasApplication(std::string_view name) = 0;
    /// The names of all applications that have a window, as the other functions take them: each once, the one
    /// in front first.
    virtual Result<std::vector<std::string>> applications() = 0;
    /// Whether keys go to a window of the application.
    virtual bool isInFront(std::string_view name) = 0;
    /// Brings a window of the application to the front and gives it the focus, for which it waits a moment.
    virtual Result<void> activate(std::string_view name) = 0;
};
