// SPDX-License-Identifier: MIT
#include "platform/script/values/Elements.h"

#include <algorithm>
#include <cstdint>

#include "platform/Utf8.h"
#include "platform/script/values/Characters.h"
#include "platform/script/values/Coercion.h"
#include "platform/script/values/SourceForm.h"

namespace script {
namespace {

Failure cannotGetElement(const Value& container, const Element& element) {
    return cannotGet(sourceForm(element) + " of " + quotedForm(container));
}

/// An apostrophe or a point stands within a word where the word goes on behind it.
bool joinsWord(std::string_view text, char32_t character, std::size_t behind) {
    const bool mayJoin = character == U'\'' || character == U'.' || character == 0x2019;
    return mayJoin && behind < text.size() && isWordCharacter(takeCharacter(text, behind));
}

std::vector<Stretch> wordsOf(std::string_view text) {
    std::vector<Stretch> found;
    bool isInside = false;
    std::size_t position = 0;
    while (position < text.size()) {
        const std::size_t start = position;
        const char32_t character = takeCharacter(text, position);
        const bool belongs = isWordCharacter(character) || (isInside && joinsWord(text, character, position));
        if (belongs && !isInside) found.push_back({start, position});
        if (belongs) found.back().end = position;
        isInside = belongs;
    }
    return found;
}

std::vector<Stretch> paragraphsOf(std::string_view text) {
    std::vector<Stretch> found;
    if (text.empty()) return found;
    std::size_t start = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\n' && text[i] != '\r') continue;
        found.push_back({start, i});
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
        start = i + 1;
    }
    found.push_back({start, text.size()});
    return found;
}

/// Where the elements of a text lie.
std::vector<Stretch> stretchesOf(std::string_view text, ElementKind kind, const TextRules& rules) {
    switch (kind) {
        case ElementKind::word:
            return wordsOf(text);
        case ElementKind::paragraph:
            return paragraphsOf(text);
        case ElementKind::textItem:
            return textItemsOf(text, rules);
        default:
            return charactersOf(text);
    }
}

/// The place from 0 of an index from 1 or, negative, from the end.
std::optional<std::size_t> placeOf(std::int64_t index, std::size_t count) {
    const auto size = static_cast<std::int64_t>(count);
    const std::int64_t place = index > 0 ? index - 1 : size + index;
    if (index == 0 || place < 0 || place >= size) return std::nullopt;
    return static_cast<std::size_t>(place);
}

/// The places from 0 that an element takes, the last one included; empty where it has none.
struct Places {
    std::size_t first = 0;
    std::size_t last = 0;
};

std::optional<Places> placesOf(const Element& element, std::size_t count) {
    if (element.form == ElementForm::middle) {
        if (count == 0) return std::nullopt;
        return Places{(count - 1) / 2, (count - 1) / 2};
    }
    const std::optional<std::size_t> first = placeOf(element.first, count);
    if (element.form == ElementForm::index)
        return first ? std::optional<Places>({*first, *first}) : std::nullopt;
    const std::optional<std::size_t> last = placeOf(element.last, count);
    if (!first || !last) return std::nullopt;
    return Places{std::min(*first, *last), std::max(*first, *last)};
}

bool isSingle(const Element& element) {
    return element.form == ElementForm::index || element.form == ElementForm::middle;
}

Fallible<Value> fromList(const Value& container, const List& list, const Element& element) {
    if (element.kind == ElementKind::typed) {
        List found;
        std::copy_if(list.begin(), list.end(), std::back_inserter(found), [&](const Value& item) {
            const Type type = typeOf(item);
            const bool isNumber = type == Type::integer || type == Type::real;
            return type == element.type || (element.type == Type::number && isNumber);
        });
        Element rest = element;
        rest.kind = ElementKind::item;
        if (element.form == ElementForm::every) return Value{std::move(found)};
        return fromList(container, found, rest);
    }
    if (element.kind != ElementKind::item) return cannotGetElement(container, element);
    if (element.form == ElementForm::every) return Value{list};
    const std::optional<Places> places = placesOf(element, list.size());
    if (!places) return cannotGetElement(container, element);
    if (isSingle(element)) return list[places->first];
    const auto first = list.begin() + static_cast<std::ptrdiff_t>(places->first);
    return Value{List(first, first + static_cast<std::ptrdiff_t>(places->last - places->first + 1))};
}

Value piece(std::string_view text, const Stretch& stretch) {
    return Value{std::string(text.substr(stretch.begin, stretch.end - stretch.begin))};
}

/// Whether the elements are characters, whose places a text knows.
bool areCharacters(ElementKind kind) {
    return kind == ElementKind::character || kind == ElementKind::item || kind == ElementKind::text;
}

/// Characters, which are found without cutting up the text; all of them are not asked for here.
Fallible<Value> charactersFrom(const Value& container, const Text& text, const Element& element) {
    const std::optional<Places> places = placesOf(element, text.characterCount());
    if (!places) return cannotGetElement(container, element);
    const std::size_t begin = text.offsetOf(places->first);
    const std::size_t end = text.offsetOf(places->last + 1);
    if (isSingle(element) || element.kind == ElementKind::text) return piece(text.str(), {begin, end});
    if (places->last - places->first >= maxListItems) return tooManyItems();
    List found;
    const std::string_view all = text.str().substr(begin, end - begin);
    for (const Stretch& one : charactersOf(all)) found.push_back(piece(all, one));
    return Value{std::move(found)};
}

Fallible<Value> fromText(const Value& container, const Text& text, const Element& element,
                         const TextRules& rules) {
    if (element.kind == ElementKind::typed) return cannotGetElement(container, element);
    if (element.kind == ElementKind::text && element.form != ElementForm::range) return container;
    if (areCharacters(element.kind) && element.form != ElementForm::every) {
        return charactersFrom(container, text, element);
    }
    const std::string_view bytes = text.str();
    const std::vector<Stretch> stretches = stretchesOf(bytes, element.kind, rules);
    Places places{0, stretches.size()};
    if (element.form == ElementForm::every) {
        if (stretches.empty()) return Value{List()};
        places.last = stretches.size() - 1;
    } else {
        const std::optional<Places> found = placesOf(element, stretches.size());
        if (!found) return cannotGetElement(container, element);
        places = *found;
    }
    if (isSingle(element)) return piece(bytes, stretches[places.first]);
    if (places.last - places.first >= maxListItems) return tooManyItems();
    List found;
    for (std::size_t i = places.first; i <= places.last; ++i) found.push_back(piece(bytes, stretches[i]));
    return Value{std::move(found)};
}

}  // namespace

Fallible<Value> elementOf(const Value& container, const Element& element, const TextRules& rules) {
    if (const List* list = container.list()) return fromList(container, *list, element);
    if (const auto* text = container.as<Text>()) return fromText(container, *text, element, rules);
    return cannotGetElement(container, element);
}

Fallible<> setElement(const Value& container, const Element& element, const Value& value) {
    List* list = container.list();
    if (list == nullptr || element.kind != ElementKind::item) {
        if (container.text() == nullptr) return cannotGetElement(container, element);
        return cannotSet(sourceForm(element) + " of " + quotedForm(container), value);
    }
    Element all = element;
    if (element.form == ElementForm::every) {
        all.form = ElementForm::range;
        all.first = 1;
        all.last = -1;
    }
    const std::optional<Places> places = placesOf(all, list->size());
    if (!places) return cannotGetElement(container, element);
    if (isSingle(element)) {
        (*list)[places->first] = value;
        return {};
    }
    const List* values = value.list();
    if (values == nullptr || values->size() < places->last - places->first + 1) {
        return cannotSet(sourceForm(element) + " of " + quotedForm(container), value);
    }
    std::copy_n(List(*values).begin(), places->last - places->first + 1,
                list->begin() + static_cast<std::ptrdiff_t>(places->first));
    return {};
}

std::optional<std::size_t> countElements(const Value& container, const Element& element,
                                         const TextRules& rules) {
    if (const List* list = container.list()) {
        if (element.kind == ElementKind::item) return list->size();
        return std::nullopt;
    }
    const auto* text = container.as<Text>();
    if (text == nullptr) return std::nullopt;
    if (areCharacters(element.kind)) return text->characterCount();
    return stretchesOf(text->str(), element.kind, rules).size();
}

Fallible<Value> textBetween(const Value& container, const Element& first, const Element& last,
                            const TextRules& rules) {
    const std::string_view* text = container.text();
    if (text == nullptr) return cannotGetElement(container, first);
    const std::vector<Stretch> begins = stretchesOf(*text, first.kind, rules);
    const std::vector<Stretch> ends = stretchesOf(*text, last.kind, rules);
    const std::optional<Places> begin = placesOf(first, begins.size());
    if (!begin) return cannotGetElement(container, first);
    const std::optional<Places> end = placesOf(last, ends.size());
    if (!end) return cannotGetElement(container, last);
    const Stretch whole{std::min(begins[begin->first].begin, ends[end->first].begin),
                        std::max(begins[begin->first].end, ends[end->first].end)};
    return piece(*text, whole);
}

}  // namespace script
