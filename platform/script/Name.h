// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace script {

/// The name of a variable, handler or property. There is one object for a name, however it is spelled, so
/// that names are compared by address.
struct Name {
    /// As first met, without bars.
    std::string spelling;
};

/// Names that the language itself uses: properties of its values.
namespace names {
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
extern const Name seconds;
extern const Name textProperty;
extern const Name textReturned;
extern const Name time;
extern const Name timeString;
extern const Name weekday;
extern const Name year;
/// The one of these with the spelling in lower case; null if there is none.
const Name* find(std::string_view lowered);
}  // namespace names

/// An index into a NameTable.
using NameId = std::uint32_t;

/// The names of one script.
class NameTable {
  public:
    /// Number 0 stands for no name.
    NameTable() { intern(""); }
    NameTable(NameTable&&) = default;
    NameTable& operator=(NameTable&&) = default;
    NameTable(const NameTable&) = delete;
    NameTable& operator=(const NameTable&) = delete;
    ~NameTable() = default;

    /// The name with this spelling; case does not matter.
    NameId intern(std::string_view spelling);
    /// Lives as long as the table, also when that is moved.
    const Name& at(NameId id) const { return *m_byId[id]; }

  private:
    std::unordered_map<std::string, NameId> m_byKey;
    std::vector<const Name*> m_byId;
    std::deque<Name> m_own;
};

/// Lower case for ASCII letters.
std::string asciiLowered(std::string_view text);

/// As a script would spell it: in bars where it is no plain word.
std::string spelledName(const Name& name);

}  // namespace script
