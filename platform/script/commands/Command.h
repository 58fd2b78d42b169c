// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <random>
#include <string_view>
#include <vector>

#include "platform/KeyInjector.h"
#include "platform/script/commands/Advice.h"
#include "platform/script/source/TokenStream.h"
#include "platform/script/values/TextRules.h"
#include "platform/script/values/Value.h"

class ScriptDesktop;
class ScriptDialogs;

namespace script {

/// What a command sees of the run that performs it.
class CommandStage {
  public:
    virtual ~CommandStage() = default;

    using KeyStep = std::function<Step<>(InjectionSession&)>;
    /// Takes a step of the session, which is opened before the first one. A wish to stop is a failure that no
    /// script can catch.
    virtual Fallible<> play(const KeyStep& step) = 0;

    /// Tells something about the command once.
    virtual void warn(std::string message) = 0;
    /// A line of the script's log.
    virtual void log(std::string line) = 0;

    virtual ScriptDesktop& desktop() = 0;
    virtual ScriptDialogs& dialogs() = 0;
    /// What pauses are divided by (platform/PlayOptions.h).
    virtual double speed() const = 0;
    /// Fails if the user wishes to stop.
    virtual Fallible<> goOn() = 0;
    virtual const TextRules& rules() const = 0;
    virtual std::mt19937_64& random() = 0;
    /// What the innermost `tell` addresses.
    virtual const Value& target() const = 0;
};

/// -10000 with what the desktop says.
Failure desktopFailure(const Error& error);

/// The values that a command was given; references have been resolved.
class Arguments {
  public:
    Arguments(const Value* values, std::uint32_t mask) : m_values(values), m_mask(mask) {}

    /// Null if it was left out.
    const Value* direct() const { return at(0); }
    /// Of the parameter with this index in the command's table.
    const Value* parameter(unsigned index) const { return at(index + 1); }

  private:
    const Value* at(unsigned bit) const;

    const Value* m_values;
    std::uint32_t m_mask;
};

/// What a command may be given behind a word or two.
struct Parameter {
    Phrase label;
    /// If there are any, one of these words stands behind the label, or an expression where `takesValue`; the
    /// argument is then the words as text.
    std::vector<Phrase> choices = {};
    bool takesValue = true;
    /// A class name stands behind the label; the argument is the class.
    bool takesClass = false;
};

/// One command of the language, all of it in one place: how it is written, what it does, and what the manual
/// says of it.
struct Command {
    enum class Direct : std::uint8_t { none, optional, required };
    /// What the direct argument makes the keyboard do, so that the compiler can plan and warn.
    enum class Plays : std::uint8_t { nothing, codes, texts, keys, pauses };

    Phrase name;
    /// Known inside `tell application "System Events"` only.
    bool isOfDictionary = false;
    Direct direct = Direct::none;
    Plays plays = Plays::nothing;
    /// `of` may stand before the direct argument.
    bool takesOf = false;
    /// The direct argument ends before an operator, so that the command's value can be calculated with.
    bool takesReference = false;
    /// What its arguments are by mistake alone, unless parentheses enclose them: in `count of x > 2` the
    /// comparison is counted.
    enum class Swallows : std::uint8_t { nothing, comparisons, calculations };
    Swallows swallows = Swallows::nothing;
    /// What its value is, where people take that for a text.
    Held gives = Held::other;
    static constexpr std::size_t maxParameters = 20;
    std::vector<Parameter> parameters = {};  ///< at most maxParameters
    Fallible<Value> (*perform)(CommandStage& stage, const Arguments& arguments) = nullptr;
    /// Its part of the language reference: a line that shows how it is written, an empty line, paragraphs.
    std::string_view manual = {};
    /// Lines that show it at work, each with what comes of it; the tests run them, the reference prints them.
    std::string_view examples = {};
};

/// All commands.
const std::vector<const Command*>& commands();

/// The index of the command whose name stands at the current token; of two the longer one. Empty if none
/// does.
std::optional<std::uint32_t> commandHere(const TokenStream& tokens);

}  // namespace script
