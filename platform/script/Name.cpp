// SPDX-License-Identifier: MIT
#include "platform/script/Name.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/script/Word.h"

namespace script {
namespace names {

const Name beginning{"beginning"};
const Name buttonReturned{"button returned"};
const Name classProperty{"class"};
const Name contents{"contents"};
const Name date{"date"};
const Name dateString{"date string"};
const Name day{"day"};
const Name end{"end"};
const Name frontmost{"frontmost"};
const Name gaveUp{"gave up"};
const Name hours{"hours"};
const Name id{"id"};
const Name length{"length"};
const Name minutes{"minutes"};
const Name month{"month"};
const Name nameProperty{"name"};
const Name rest{"rest"};
const Name reverse{"reverse"};
const Name run{"run"};
const Name seconds{"seconds"};
const Name textProperty{"text"};
const Name textReturned{"text returned"};
const Name time{"time"};
const Name timeString{"time string"};
const Name weekday{"weekday"};
const Name year{"year"};

const Name* find(std::string_view lowered) {
    static const std::array<const Name*, 26> all{
        &beginning,    &buttonReturned, &classProperty, &contents, &date, &dateString, &day,
        &end,          &frontmost,      &gaveUp,        &hours,    &id,   &length,     &minutes,
        &month,        &nameProperty,   &rest,          &reverse,  &run,  &seconds,    &textProperty,
        &textReturned, &time,           &timeString,    &weekday,  &year};
    const auto* found =
        std::find_if(all.begin(), all.end(), [&](const Name* name) { return name->spelling == lowered; });
    return found == all.end() ? nullptr : *found;
}

}  // namespace names

NameId NameTable::intern(std::string_view spelling) {
    std::string key = asciiLowered(spelling);
    const auto id = static_cast<NameId>(m_byId.size());
    const auto [place, isNew] = m_byKey.emplace(std::move(key), id);
    if (!isNew) return place->second;
    const Name* name = names::find(place->first);
    if (name == nullptr) {
        m_own.push_back({std::string(spelling)});
        name = &m_own.back();
    }
    m_byId.push_back(name);
    return id;
}

std::string asciiLowered(std::string_view text) {
    std::string lowered(text);
    for (char& c : lowered) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return lowered;
}

std::string spelledName(const Name& name) {
    const std::string& text = name.spelling;
    const bool isWord =
        !text.empty() && (text.front() < '0' || text.front() > '9') &&
        std::all_of(text.begin(), text.end(), [](char c) {
            return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
        });
    const Word word = isWord ? wordOf(text) : Word::none;
    const bool isOwn = names::find(asciiLowered(text)) == &name;
    if (isOwn || (isWord && (word == Word::none || kindOf(word) != WordKind::reserved))) return text;
    std::string barred = "|";
    for (const char c : text) {
        if (c == '|' || c == '\\') barred += '\\';
        barred += c;
    }
    return barred + "|";
}

}  // namespace script
