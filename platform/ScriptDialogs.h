// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "platform/Result.h"

/// A question of a script, all texts UTF-8.
struct ScriptDialog {
    enum class Kind { dialog, alert };
    enum class Icon { none, stop, note, caution };

    Kind kind = Kind::dialog;
    std::string text;
    std::string message = {};  ///< the smaller text below; of alerts only
    std::string title = {};
    Icon icon = Icon::none;
    /// One to three, in the order in which they are named, which is from left to right.
    std::vector<std::string> buttons;
    /// Indices into buttons. Return presses the default button, Escape the cancel button.
    std::optional<std::size_t> defaultButton = {};
    std::optional<std::size_t> cancelButton = {};
    /// With an answer there is a field for text.
    std::optional<std::string> defaultAnswer = {};
    bool hidesAnswer = false;
    /// Of a list to choose from; then at least one is chosen, unless none may be.
    std::vector<std::string> choices = {};
    std::vector<std::size_t> defaultChoices = {};  ///< indices, in their order
    bool allowsSeveral = false;
    bool allowsNone = false;
    /// In seconds; 0 waits for ever.
    double givingUpAfter = 0;
};

/// What came of it.
struct ScriptAnswer {
    /// Empty if time ran out.
    std::optional<std::size_t> button;
    std::string text;
    std::vector<std::size_t> chosen = {};  ///< indices into choices, in their order
};

struct ScriptNotification {
    std::string text;
    std::string title = {};
    std::string subtitle;
};

/// Asks the user for a script and tells him things. While a question is open the program does nothing else;
/// afterwards the focus is where it was.
class ScriptDialogs {
  public:
    virtual ~ScriptDialogs() = default;

    /// Fails where nobody can be asked.
    virtual Result<ScriptAnswer> ask(const ScriptDialog& dialog) = 0;
    /// Does not wait.
    virtual Result<void> notify(const ScriptNotification& notification) = 0;
};
