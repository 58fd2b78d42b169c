// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Sentence.h"
#include "platform/script/values/Value.h"

/// The words of warnings and hints, which the compiler and the run share, in the language of the user. The
/// script's own words and the names of its variables are the same in all languages.
namespace script {

/// What there is to say about a key code: only this program plays it, no key has it, or none can. Empty for
/// all others.
std::string codeAdvice(std::int64_t code);

/// "Key code N has no key; nothing is pressed."
std::string noKeyAdvice(std::uint32_t code);

/// Of what is no number in the place of a key code.
std::string noCodeAdvice();

/// Of a text there, which may name a key or be what the key types.
std::string noCodeAdvice(std::string_view text);

/// Of what presses keys in other languages.
inline constexpr const char* pressingAdvice = englishOf(
    "Hints",
    "A key is pressed by its number: key code 36 is Return. “keyrill-script keys” prints all numbers.");

/// Of today's date in the words of other languages.
inline constexpr const char* datingAdvice = englishOf(
    "Hints", "The date of today is “current date”; as a text: short date string of (current date).");

/// Of the name of a key in the place of its number; empty for all other names.
std::string keyNameAdvice(std::string_view name);

/// Of a part that a date does not have.
std::string datePartAdvice();

/// "Did you mean WORD?"
std::string didYouMean(std::string_view word);

/// Of a text in the place of a number of seconds.
std::string pauseAdvice(std::string_view text);

/// Of a record, as dialogs give it, in the place of a text.
std::string recordAdvice();

/// What a variable holds that is no text, though people take it for one.
enum class Held : std::uint8_t {
    other,
    dialog,  ///< the record that a dialog gives
    alert,   ///< likewise, without a text
    chosen,  ///< the list of what was chosen
    item,    ///< the reference of a loop to an item
};

/// Of a variable that holds that and is taken for a text; empty for `other`.
std::string heldAdvice(Held held, std::string_view name);

/// Of a key's name in the place of a modifier that is down.
std::string modifierAdvice(const Modifier& modifier);

/// Of a text in the place of a modifier; empty where it names none.
std::string quotedModifierAdvice(std::string_view text);

/// Of modifiers that are calculated with.
std::string joinedModifiersAdvice();

/// Of texts with a plus between them.
std::string joinedTextsAdvice();

/// Of an operator that stands behind a command and is part of what that is given: `count of x > 2`.
std::string swallowedAdvice(std::string_view command, std::string_view operation);

/// Of so many seconds that were meant to be milliseconds.
std::string millisecondsAdvice(std::uint32_t count);

/// Of a comparison whose answer nobody takes. The name is empty where none is compared.
std::string comparisonAdvice(std::string_view name);

/// Of the name of a modifier elsewhere, in the place of its name here.
std::string modifierNameAdvice(std::string_view modifier);

/// Of a variable that is read and never set, with a sentence about what was meant.
std::string neverSetAdvice(std::string_view name, std::string_view meant);

/// Of a variable that a handler does not share with what runs.
std::string sharingAdvice(std::string_view name);

/// Of a text that is typed as it stands and names a key or a shortcut as other programs do: "{ENTER}",
/// "Hello{ENTER}", "<Tab>", "F5", "ctrl+c". Empty for all others.
std::string typedNameAdvice(std::string_view text);

/// Of the name of a modifier in quotes, or by itself, where a text or key is meant.
std::string heldModifierAdvice();

/// Of a call for which the script has no handler.
std::string noHandlerAdvice(std::string_view name);

/// Of a command that a program is told, which takes none.
std::string programAdvice(std::string_view command);

/// What words of other languages are here; empty for words of none.
std::string foreignWordAdvice(std::string_view name);

/// What the value of a name is taken for.
enum class NameRole : std::uint8_t {
    value,
    text,        ///< typed
    joinedText,  ///< part of what is typed
    keyCode,
    application,  ///< told something
    statement,    ///< nothing: the name stands alone in its line
    program,      ///< likewise, inside `tell` of a program
    compared,     ///< what `=` compares it with, where nobody takes the answer
};

/// What a name was meant to be that is never set, where a value of that role belongs; empty where it is a
/// text without quotes.
std::string meantBy(std::string_view name, NameRole role);

/// Of words without quotes that are a text.
std::string quotesAdvice(std::string_view words);

/// Of a variable without a value, where a script reads it.
std::string undefinedHint(std::string_view name);

}  // namespace script
