// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/script/code/Bytecode.h"
#include "platform/script/code/Scope.h"
#include "platform/script/syntax/Node.h"

namespace script {

/// What the parts of the code generator share: the bytecode as far as it is made, and the handler whose code
/// is made.
class Emitter {
  public:
    /// More warnings are left out: nobody reads them.
    static constexpr std::size_t maxWarnings = 1000;

    Emitter(const Tree& tree, std::string_view source) : m_tree(tree), m_source(source) {}

    const Tree& tree() const { return m_tree; }
    Bytecode& code() { return m_code; }
    ScriptVariables& script() { return m_script; }
    Scope& scope() { return *m_scope; }
    void setScope(Scope& scope) { m_scope = &scope; }

    void emit(Operation operation, const Node& node, std::uint32_t operand = 0, std::uint8_t detail = 0) {
        m_code.instructions.push_back({operation, detail, operand, node.offset});
    }
    std::uint32_t position() const { return static_cast<std::uint32_t>(m_code.instructions.size()); }
    /// Emits a jump whose target is not known yet; its place.
    std::uint32_t emitJump(Operation operation, const Node& node) {
        emit(operation, node);
        return position() - 1;
    }
    /// Makes the jump lead here.
    void land(std::uint32_t jump) { m_code.instructions[jump].operand = position(); }

    void warn(std::uint32_t offset, std::string message);
    /// Puts the warnings into the code, in the order of the source. Called once.
    void finishWarnings();
    /// Only the first one counts.
    void fail(int number, Sentence message, std::uint32_t offset);
    const std::optional<ScriptError>& error() const { return m_error; }

  private:
    const Tree& m_tree;
    std::string_view m_source;
    Bytecode m_code;
    ScriptVariables m_script;
    Scope* m_scope = nullptr;
    std::optional<ScriptError> m_error;
    struct Warning {
        std::uint32_t offset = 0;
        std::string message;
    };
    std::vector<Warning> m_warnings;
};

}  // namespace script
