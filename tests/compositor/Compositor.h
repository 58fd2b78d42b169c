// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

/// A compositor of a test's own, as the programs in it need it.
class Compositor {
  public:
    virtual ~Compositor() = default;

    /// What programs need to know, to be shown by it.
    virtual const std::map<std::string, std::string>& environment() const = 0;
    /// Gives the focus to the window with that title; false while there is none.
    virtual bool focus(const std::string& title) const = 0;
    /// Asks the window with that title to close, as its frame does.
    virtual void close(const std::string& title) const = 0;
    /// Whether keys go to the window with that title.
    virtual bool hasFocus(const std::string& title) const = 0;
    /// Whether there is a window with that title.
    virtual bool shows(const std::string& title) const = 0;

  protected:
    Compositor() = default;
    Compositor(const Compositor&) = default;
    Compositor& operator=(const Compositor&) = default;
};
