// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "compositor/Field.h"

class Sway;

/// Who is typed into in a session: a native program that is none of ours. It has the focus when constructed.
class Target {
  public:
    /// A terminal, of sway alone (tests/compositor), or a text field.
    enum class Kind { terminal, gtk, qt };

    virtual ~Target() = default;

    /// What has been typed into it so far; of a field, what is in it.
    virtual std::string text() const = 0;
    /// Waits until it is exactly that, or a while without, and gives what it is then.
    std::string text(const std::string& expected) const;
    /// What is in it once that has been typed and then Control with S: a terminal gets a character more, a
    /// field saves.
    virtual std::string afterSaving(const std::string& text) const = 0;
    /// What is held for a paste with V, as scripts say it.
    virtual std::string pasteModifiers() const = 0;
    virtual void focus() const = 0;
    /// Its colour, where nothing is written: red, green, blue.
    virtual std::array<std::uint8_t, 3> colour() const = 0;

  protected:
    Target() = default;
    Target(const Target&) = default;
    Target& operator=(const Target&) = default;
};

std::unique_ptr<Target> makeTerminal(const Sway& sway);
std::unique_ptr<Target> makeField(const Compositor& compositor, Field::Toolkit toolkit);
