// SPDX-License-Identifier: MIT
#include "platform/script/source/Name.h"

#include <algorithm>
#include <array>

#include "platform/script/source/Literal.h"
#include "platform/script/source/Word.h"

namespace script {
namespace {

/// A power of two, as are all its doubles.
constexpr std::size_t firstSlots = 64;

}  // namespace

namespace names {

const Name backgroundOnly{"background only"};
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
const Name running{"running"};
const Name seconds{"seconds"};
const Name shortDateString{"short date string"};
const Name textProperty{"text"};
const Name textReturned{"text returned"};
const Name time{"time"};
const Name timeString{"time string"};
const Name visible{"visible"};
const Name weekday{"weekday"};
const Name year{"year"};

const Name* find(std::string_view spelling) {
    static const std::array<const Name*, 30> all{&backgroundOnly,
                                                 &visible,
                                                 &beginning,
                                                 &buttonReturned,
                                                 &classProperty,
                                                 &contents,
                                                 &date,
                                                 &dateString,
                                                 &day,
                                                 &end,
                                                 &frontmost,
                                                 &gaveUp,
                                                 &hours,
                                                 &id,
                                                 &length,
                                                 &minutes,
                                                 &month,
                                                 &nameProperty,
                                                 &rest,
                                                 &reverse,
                                                 &run,
                                                 &running,
                                                 &seconds,
                                                 &shortDateString,
                                                 &textProperty,
                                                 &textReturned,
                                                 &time,
                                                 &timeString,
                                                 &weekday,
                                                 &year};
    const auto* found = std::find_if(all.begin(), all.end(), [&](const Name* name) {
        return equalIgnoringCase(name->spelling, spelling);
    });
    return found == all.end() ? nullptr : *found;
}

bool isOfProcess(const Name& name) {
    return &name == &nameProperty || &name == &frontmost || &name == &visible || &name == &backgroundOnly ||
           &name == &running;
}

}  // namespace names

NameTable::NameTable() : m_slots(firstSlots) {
    m_own.push_back({""});
    m_byId.push_back({&m_own.back(), 0});
}

NameId NameTable::intern(std::string_view spelling, std::uint32_t hash) {
    if (spelling.empty()) return 0;
    std::size_t slot = slotOf(spelling, hash);
    if (m_slots[slot] != 0) return m_slots[slot];
    const Name* name = names::find(spelling);
    if (name == nullptr) {
        m_own.push_back({std::string(spelling)});
        name = &m_own.back();
    }
    const auto id = static_cast<NameId>(m_byId.size());
    m_byId.push_back({name, hash});
    m_slots[slot] = id;
    if (m_byId.size() * 2 > m_slots.size()) grow();
    return id;
}

/// The slot of the name, or the free one that it would take.
std::size_t NameTable::slotOf(std::string_view spelling, std::uint32_t hash) const {
    const std::size_t mask = m_slots.size() - 1;
    std::size_t slot = hash & mask;
    for (; m_slots[slot] != 0; slot = (slot + 1) & mask) {
        const Entry& entry = m_byId[m_slots[slot]];
        if (entry.hash == hash && equalIgnoringCase(entry.name->spelling, spelling)) break;
    }
    return slot;
}

void NameTable::grow() {
    m_slots.assign(m_slots.size() * 2, 0);
    for (NameId id = 1; id < m_byId.size(); ++id) {
        m_slots[slotOf(m_byId[id].name->spelling, m_byId[id].hash)] = id;
    }
}

std::string asciiLowered(std::string_view text) {
    std::string lowered(text);
    for (char& c : lowered) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return lowered;
}

std::string sourceForm(const Name& name) {
    return names::find(name.spelling) == &name ? name.spelling : sourceForm(std::string_view(name.spelling));
}

namespace {

/// Whether it is a constant wherever a name could stand.
bool isValue(Word word) {
    return word == Word::linefeed || word == Word::quote || word == Word::space || word == Word::tab;
}

}  // namespace

std::string sourceForm(std::string_view spelling) {
    const bool isWord =
        !spelling.empty() && (spelling.front() < '0' || spelling.front() > '9') &&
        std::all_of(spelling.begin(), spelling.end(), [](char c) {
            return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
        });
    const Word word = isWord ? wordOf(spelling) : Word::none;
    if (isWord && !isValue(word) && (word == Word::none || kindOf(word) != WordKind::reserved))
        return std::string(spelling);
    return '|' + escaped(spelling, '|') + '|';
}

}  // namespace script
