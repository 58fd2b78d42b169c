// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <set>
#include <string>

#include "compositor/Hands.h"
#include "platform/Descriptor.h"
#include "support/Child.h"

/// A system bus of a test's own with the service keyrill-access, whose keyboard is a pipe; polkit and logind
/// are played (tests/access/world_run.py). At first the service does not run and nothing is allowed.
class AccessWorld {
  public:
    AccessWorld();

    std::string bus() const { return "unix:path=" + m_folder.file("bus"); }

    /// Has a command of world_run.py done: "serve", "allow", "back", ...
    void tell(const std::string& command);

    /// Whether the process has the keyboard open.
    bool isOpenFor(pid_t process) const;

    /// The kernel tells of a key, by its X key code, whoever has the keyboard open: of nothing that was
    /// before, but for the modifiers. What is held a device tells when it is asked, as a pipe cannot: there
    /// their strokes wait for who opens it.
    void key(std::uint8_t keycode, bool press, pid_t reader);
    /// Nothing more comes from the keyboard, as after a revocation.
    void endKeyboard() { m_keyboard.reset(); }

  private:
    void awaitAnswers();

    TemporaryFolder m_folder;
    std::unique_ptr<Child> m_program;
    Descriptor m_commands;
    Descriptor m_keyboard;
    /// What hands hold.
    std::set<std::uint8_t> m_down;
    std::size_t m_answers = 1;
};

/// The hands of a person whose keyboard the kernel shows as well, a moment before the compositor has it.
class ShownHands final : public Hands {
  public:
    /// Shown to that process. The others outlive this.
    ShownHands(AccessWorld& world, Hands& hands, pid_t reader)
        : m_world(world), m_hands(hands), m_reader(reader) {}

  private:
    void send(std::uint8_t keycode, bool press) override;

    AccessWorld& m_world;
    Hands& m_hands;
    pid_t m_reader;
};
