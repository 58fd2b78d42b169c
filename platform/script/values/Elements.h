// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "platform/script/values/TextRules.h"
#include "platform/script/values/Value.h"

/// The elements of lists and texts: items, characters (code points), words, paragraphs, text items.
namespace script {

/// The element, or the list of elements for `every` and ranges; of a range of text the text. A form that
/// depends on chance (`some`) is made an index before. Fails with -1728 "Can’t get ITEM of VALUE."
Fallible<Value> elementOf(const Value& container, const Element& element, const TextRules& rules);

/// Puts a value in the place of an item of a list, or values in those of a range.
Fallible<> setElement(const Value& container, const Element& element, const Value& value);

/// How many elements of the kind there are; empty if the value has none such.
std::optional<std::size_t> countElements(const Value& container, const Element& element,
                                         const TextRules& rules);

/// The text from the beginning of one element to the end of another, both of a text.
Fallible<Value> textBetween(const Value& container, const Element& first, const Element& last,
                            const TextRules& rules);

}  // namespace script
