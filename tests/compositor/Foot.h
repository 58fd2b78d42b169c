// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "compositor/Compositor.h"
#include "support/Child.h"

/// foot, a terminal that is a native Wayland program; it writes every byte that is typed into it to a file.
/// Neither control characters nor full lines mean anything to it; Return is a line feed. It has the focus
/// when constructed, and shows the same whether it has it or not.
class Foot {
  public:
    explicit Foot(const Compositor& compositor);

    /// Its colour, where nothing is written: red, green, blue.
    static constexpr std::array<std::uint8_t, 3> colour{0x10, 0x20, 0x30};

    /// How the compositor and scripts call its window, and what its title is: each has its own name.
    std::string program() const;
    pid_t pid() const { return m_program->pid(); }

    /// What has been typed so far, UTF-8.
    std::string typed() const { return contentOf(m_folder.file("typed")); }
    /// Waits until that many bytes, or more, have come: all of them. Too few fail the test.
    std::string typed(std::size_t bytes, std::chrono::milliseconds deadline = std::chrono::seconds(20)) const;

    void focus() const;

  private:
    const Compositor& m_compositor;
    TemporaryFolder m_folder;
    std::unique_ptr<Child> m_program;
};
