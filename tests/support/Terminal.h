// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include "support/WindowedProgram.h"

/// xterm, which writes every byte that is typed into it to a file. Neither control characters nor full lines
/// mean anything to it; Return is a line feed. It has the focus when constructed.
class Terminal : public WindowedProgram {
  public:
    struct Options {
        /// Further ones of xterm's, such as {"-geometry", "80x24+0+0"}.
        std::vector<std::string> xterm = {};
        /// Mouse buttons are typed too: "\x1b[<0;12;3M" for a press in column 12 of line 3, with an "m" at
        /// its end for the release.
        bool typesMouseButtons = false;
        /// On top of the test's own.
        std::map<std::string, std::string> environment = {};
    };

    explicit Terminal(const std::string& display) : Terminal(display, Options()) {}
    Terminal(const std::string& display, const Options& options);

    /// What has been typed so far, UTF-8.
    std::string typed() const { return contentOf(folder().file("typed")); }
    /// Waits until that many bytes, or more, have come: all of them. Too few fail the test.
    std::string typed(std::size_t bytes, std::chrono::milliseconds deadline = std::chrono::seconds(20)) const;

    void focus() const;
    bool hasFocus() const;
};
