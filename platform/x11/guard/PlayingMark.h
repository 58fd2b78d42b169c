// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/Descriptor.h"

namespace x11 {

/// A file that stands, locked, while keys are being pressed. One that stands and is not locked tells the next
/// start that both the player and its guard died in a run.
class PlayingMark {
  public:
    /// `file` may be empty: then there is no mark.
    explicit PlayingMark(std::string file);
    ~PlayingMark();
    PlayingMark(const PlayingMark&) = delete;
    PlayingMark& operator=(const PlayingMark&) = delete;

    /// `folder`/keyrill/playing-DISPLAY; empty if the folder is.
    static std::string fileFor(const std::string& folder, const std::string& display);

    const std::string& file() const { return m_file; }

    /// Makes the file and its folder. A mark that cannot be made is done without: it only serves the case
    /// that the guard is killed too.
    void set();
    void clear();

    /// Whether a dead process left its mark; it is removed.
    bool takeStale();

  private:
    bool tryToSet();

    std::string m_file;
    Descriptor m_open;
};

}  // namespace x11
