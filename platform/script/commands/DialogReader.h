// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/ScriptDialogs.h"
#include "platform/script/commands/Command.h"

namespace script {

/// Makes a question of what a command was given. After the first thing that is wrong all else is empty.
class DialogReader {
  public:
    explicit DialogReader(const Arguments& arguments) : m_arguments(arguments) {}

    ScriptDialog& dialog() { return m_dialog; }
    const std::optional<Failure>& failure() const { return m_failure; }

    /// Empty where it was left out.
    std::string text(const Value* given);
    /// `true` or `false`; false where it was left out.
    bool truth(const Value* given);
    double number(const Value* given);
    /// One to three.
    void readButtons(unsigned parameter, std::vector<std::string> usual);
    /// By text or by number.
    void readButton(unsigned parameter, std::optional<std::size_t>& target);

    /// One or more; those that are chosen already are items of the list.
    void readChoices(const Value& choices, const Value* chosen);

    /// The answer as the command gives it, also that of the cancel button.
    Fallible<Value> choose(CommandStage& stage,
                           Value (*answered)(const ScriptDialog& dialog, const ScriptAnswer& answer));
    /// The answer as the command gives it; -128 for the cancel button.
    Fallible<Value> ask(CommandStage& stage,
                        Value (*answered)(const ScriptDialog& dialog, const ScriptAnswer& answer));

  private:
    void fail(Failure failure);
    Fallible<ScriptAnswer> answer(CommandStage& stage);

    const Arguments& m_arguments;
    ScriptDialog m_dialog;
    std::optional<Failure> m_failure;
};

}  // namespace script
