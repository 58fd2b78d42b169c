// SPDX-License-Identifier: MIT
#pragma once

/// What is known of characters; no locale changes it.
namespace script {

/// Lower case, where that is one character.
char32_t lowered(char32_t character);

/// A letter without its accents or its stroke; 0 for an accent that is a character of its own.
char32_t withoutAccents(char32_t character);

bool isHyphen(char32_t character);
bool isPunctuation(char32_t character);
bool isWhiteSpace(char32_t character);
/// Letters, digits and all else that stands within words.
bool isWordCharacter(char32_t character);

}  // namespace script
