// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/Sentence.h"
#include "platform/script/values/Value.h"

/// The words of warnings and hints, which the compiler and the run share. The
/// script's own words and the names of its variables are the same in all languages.
namespace script {

/// What there is to say about a key code: only this program plays it, no key has it, or none can. Empty for
/// all others.
Sentence codeAdvice(std::int64_t code);

/// "Key code N has no key; nothing is pressed."
Sentence noKeyAdvice(std::uint32_t code);

/// Of what is no number in the place of a key code.
Sentence noCodeAdvice();

/// Of a text there, which may name a key or be what the key types.
Sentence noCodeAdvice(std::string_view text);

/// Of what presses keys in other languages.
inline constexpr const char* pressingAdvice = englishOf(
    "Hints",
    "A key is pressed by its number: key code 36 is Return. “keyrill-script keys” prints all numbers.");

/// Of today's date in the words of other languages.
inline constexpr const char* datingAdvice = englishOf(
    "Hints", "The date of today is “current date”; as a text: short date string of (current date).");

/// Of the name of a key in the place of its number; empty for all other names.
Sentence keyNameAdvice(std::string_view name);

/// Of a part that a date does not have.
Sentence datePartAdvice();

/// "Did you mean WORD?"
Sentence didYouMean(std::string_view word);

/// Of a text in the place of a number of seconds.
Sentence pauseAdvice(std::string_view text);

/// Of a record, as dialogs give it, in the place of a text.
Sentence recordAdvice();

/// What a variable holds that is no text, though people take it for one.
enum class Held : std::uint8_t {
    other,
    dialog,  ///< the record that a dialog gives
    alert,   ///< likewise, without a text
    chosen,  ///< the list of what was chosen
    item,    ///< the reference of a loop to an item
};

/// Of a variable that holds that and is taken for a text; empty for `other`.
Sentence heldAdvice(Held held, std::string_view name);

/// Of a key's name in the place of a modifier that is down.
Sentence modifierAdvice(const Modifier& modifier);

/// Of a text in the place of a modifier; empty where it names none.
Sentence quotedModifierAdvice(std::string_view text);

/// Of modifiers that are calculated with.
Sentence joinedModifiersAdvice();

/// Of texts with a plus between them.
Sentence joinedTextsAdvice();

/// Of an operator that stands behind a command and is part of what that is given: `count of x > 2`.
Sentence swallowedAdvice(std::string_view command, std::string_view operation);

/// Of so many seconds that were meant to be milliseconds.
Sentence millisecondsAdvice(std::uint32_t count);

/// Of a comparison whose answer nobody takes. The name is empty where none is compared.
Sentence comparisonAdvice(std::string_view name);

/// Of the name of a modifier elsewhere, in the place of its name here.
Sentence modifierNameAdvice(std::string_view modifier);

/// Of a variable that is read and never set, with a sentence about what was meant.
Sentence neverSetAdvice(std::string_view name, std::string_view meant);

/// Of a variable that a handler does not share with what runs.
Sentence sharingAdvice(std::string_view name);

/// Of a text that is typed as it stands and names a key or a shortcut as other programs do: "{ENTER}",
/// "Hello{ENTER}", "<Tab>", "F5", "ctrl+c". Empty for all others.
Sentence typedNameAdvice(std::string_view text);

/// Of the name of a modifier in quotes, or by itself, where a text or key is meant.
Sentence heldModifierAdvice();

/// Of a call for which the script has no handler.
Sentence noHandlerAdvice(std::string_view name);

/// Of a command that a program is told, which takes none.
Sentence programAdvice(std::string_view command);

/// What words of other languages are here; empty for words of none.
Sentence foreignWordAdvice(std::string_view name);

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
Sentence meantBy(std::string_view name, NameRole role);

/// Of words without quotes that are a text.
Sentence quotesAdvice(std::string_view words);

/// Of a variable without a value, where a script reads it.
Sentence undefinedHint(std::string_view name);

}  // namespace script
