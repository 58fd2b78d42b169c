// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <string>

#include "platform/Result.h"

/// Texts under the names of fields: words of ASCII letters and digits, and one line of UTF-8 without blanks
/// around it.
using Record = std::map<std::string, std::string>;

/// What the program keeps of things of the user's: a record under the name of each.
///
/// What is set is stored at the end of the event loop's turn at the latest, all of it in one write; until
/// then it is read back from memory. Nothing is read before the first call.
class RecordStore {
  public:
    virtual ~RecordStore() = default;

    /// By their names: bytes in whatever encoding, never empty. No record is empty.
    virtual const std::map<std::string, Record>& records() = 0;

    /// Puts a record in the place of the one of that name; an empty one removes it.
    virtual void set(const std::string& name, const Record& record) = 0;

    /// Stores now what was set and is not stored yet. The error tells why the file could not be written; the
    /// earlier file is whole then, the records stay in memory and are tried again after the next set.
    virtual Result<> synchronize() = 0;

    /// What went wrong and nobody was told yet: a file that could not be read, a write at the end of a turn
    /// that failed. Each fault is given once, in the order in which they came; empty if there is none.
    virtual std::optional<Error> takeFault() = 0;
};
