// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/script/Node.h"
#include "platform/script/Program.h"

namespace script {

/// Turns a tree without errors into instructions.
///
/// A statement leaves the stack as it found it, but for the counters of the loops around it.
class CodeGenerator {
  public:
    /// More are left out: nobody reads them.
    static constexpr std::size_t maxWarnings = 1000;

    CodeGenerator(const Tree& tree, std::string_view source) : m_tree(tree), m_locator(source) {}

    /// Called once. The program's source is left empty.
    Program generate();

  private:
    void statements(NodeId first);
    void statement(NodeId id);
    void tell(const Node& node);
    void command(Operation operation, const Node& node);
    void delay(const Node& node);
    void repeat(const Node& node);
    void expression(NodeId id);
    void list(const Node& node);
    void binary(NodeId id);
    void emit(Operation operation, const Node& node, std::uint32_t operand = 0, std::uint8_t detail = 0);
    std::uint32_t position() const { return static_cast<std::uint32_t>(m_program.instructions.size()); }

    void warnOfCodes(NodeId codes);
    void warnOfModifiers(NodeId modifiers);
    void warn(const Node& node, std::string message);

    const Tree& m_tree;
    Locator m_locator;
    Program m_program;
    /// Jumps out of the innermost loop, whose target is not known yet.
    std::vector<std::uint32_t> m_exits;
};

}  // namespace script
