// SPDX-License-Identifier: MIT
#pragma once

#include <set>
#include <string_view>
#include <unordered_map>

#include "platform/script/code/Emitter.h"
#include "platform/script/code/NameCheck.h"
#include "platform/script/code/StatementGenerator.h"

namespace script {

/// Turns a tree without errors of syntax into bytecode.
///
/// First come the properties' values and what runs, then the handlers, each behind the other.
class CodeGenerator {
  public:
    CodeGenerator(const Tree& tree, std::string_view source)
        : m_tree(tree), m_out(tree, source), m_statements(m_out) {}

    /// Called once. Source and names are left empty.
    Bytecode generate();
    /// What is wrong with names that a parser does not know of.
    const std::optional<ScriptError>& error() const { return m_out.error(); }

  private:
    void collect();
    void collectProperty(const Node& node);
    void collectGlobals(NodeId first, bool insideHandler);
    void collectHandler(const Node& node);
    void checkRun();
    void runPart();
    void handler(const Node& node);
    void parameters(const Node& node, Handler& handler, Scope& scope);
    void failTwice(NameId parameter, std::uint32_t offset);
    void parameterName(NodeId pattern, std::set<NameId>& seen);
    void resolveCalls();
    void finish(Handler handler, const Scope& scope, std::uint32_t enter);
    bool isRun(const Node& node) const;
    bool isFollowed(const Node& statement) const;

    const Tree& m_tree;
    Emitter m_out;
    StatementGenerator m_statements;
    std::unordered_map<NameId, std::uint32_t> m_properties;
    std::unordered_map<NameId, std::uint32_t> m_handlers;
    NameCheck m_names{m_out, m_handlers};
    /// Declared global in handlers, and so in what runs.
    std::vector<NameId> m_sharedWithRun;
    const Node* m_run = nullptr;
    const Node* m_loose = nullptr;
};

}  // namespace script
