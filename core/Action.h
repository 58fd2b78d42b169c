// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

/// One step of a macro: a key press, a pause, or the beginning or end of a modifier's hold. It renders itself
/// as a line of script and as a short text for menus and the recording overlay; rendering never fails and
/// never depends on the locale.
///
/// Held by boost::shared_ptr. Immutable but for the modifiers, which are set once, right after creation.
class Action {
  public:
    virtual ~Action();
    Action(const Action&) = delete;
    Action& operator=(const Action&) = delete;

    /// The script line that plays this step, ending in a line feed.
    virtual std::string scriptLine() const = 0;

    /// The step as people read it, UTF-8, without a line end.
    virtual std::string displayText() const = 0;

    /// The mask of the key press (platform/Modifiers.h), 0 at first. Unknown bits are kept and mean nothing.
    void setModifiers(std::uint32_t modifiers) { m_modifiers = modifiers; }
    std::uint32_t modifiers() const { return m_modifiers; }

  protected:
    Action() = default;

  private:
    std::uint32_t m_modifiers = 0;
};
