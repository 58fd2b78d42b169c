// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "platform/script/source/Word.h"

namespace script {

/// The name of a variable, handler or property. There is one object for a name, however it is spelled, so
/// that names are compared by address.
struct Name {
    /// As first met, without bars.
    std::string spelling;
};

/// Names that the language itself uses: properties of its values.
namespace names {
extern const Name backgroundOnly;
extern const Name beginning;
extern const Name buttonReturned;
extern const Name classProperty;
extern const Name contents;
extern const Name date;
extern const Name dateString;
extern const Name day;
extern const Name end;
extern const Name frontmost;
extern const Name gaveUp;
extern const Name hours;
extern const Name id;
extern const Name length;
extern const Name minutes;
extern const Name month;
extern const Name nameProperty;
extern const Name rest;
extern const Name reverse;
extern const Name run;
extern const Name running;
extern const Name seconds;
extern const Name shortDateString;
extern const Name textProperty;
extern const Name textReturned;
extern const Name time;
extern const Name timeString;
extern const Name visible;
extern const Name weekday;
extern const Name year;
/// The one of these with the spelling; null if there is none. Case does not matter.
const Name* find(std::string_view spelling);
/// Whether it is one that a process has: its name, and where it stands.
bool isOfProcess(const Name& name);
}  // namespace names

/// An index into a NameTable.
using NameId = std::uint32_t;

/// The names of one script.
class NameTable {
  public:
    /// Number 0 stands for no name.
    NameTable();
    NameTable(NameTable&&) = default;
    NameTable& operator=(NameTable&&) = default;
    NameTable(const NameTable&) = delete;
    NameTable& operator=(const NameTable&) = delete;
    ~NameTable() = default;

    /// The name with this spelling; case does not matter.
    NameId intern(std::string_view spelling) { return intern(spelling, SpellingHash(spelling).value()); }
    /// The hash is that of the spelling.
    NameId intern(std::string_view spelling, std::uint32_t hash);
    /// Whether it has such a name already.
    bool knows(std::string_view spelling, std::uint32_t hash) const {
        return m_slots[slotOf(spelling, hash)] != 0;
    }
    /// Lives as long as the table, also when that is moved.
    const Name& at(NameId id) const { return *m_byId[id].name; }

  private:
    struct Entry {
        const Name* name = nullptr;
        std::uint32_t hash = 0;
    };

    std::size_t slotOf(std::string_view spelling, std::uint32_t hash) const;
    void grow();

    std::vector<Entry> m_byId;
    /// Where a name may be by its hash, or else in the next slot that is taken; at most half of them are.
    std::vector<NameId> m_slots;
    std::deque<Name> m_own;
};

/// Lower case for ASCII letters.
std::string asciiLowered(std::string_view text);

/// As a script would spell it: in bars where it is no plain word.
std::string sourceForm(const Name& name);
/// Likewise a name of the script's own.
std::string sourceForm(std::string_view spelling);

}  // namespace script
