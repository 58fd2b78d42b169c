// SPDX-License-Identifier: MIT
#include "platform/script/code/CodeGenerator.h"

#include <algorithm>
#include <string>
#include <utility>

#include "platform/script/commands/Advice.h"
#include "platform/script/source/Wording.h"

namespace script {

Bytecode CodeGenerator::generate() {
    Bytecode& code = m_out.code();
    code.instructions.reserve(m_tree.nodes.size());
    code.reals = m_tree.reals;
    code.texts.reserve(m_tree.texts.size());
    for (const std::string_view text : m_tree.texts) code.texts.emplace_back(std::string(text));
    collect();
    runPart();
    for (NodeId id = m_tree.at(0).firstChild; id != noNode; id = m_tree.at(id).nextSibling) {
        const Node& node = m_tree.at(id);
        if (node.kind == NodeKind::handler && !isRun(node)) handler(node);
    }
    resolveCalls();
    m_names.warn();
    m_out.finishWarnings();
    code.globals = m_out.script().names();
    return std::move(code);
}

bool CodeGenerator::isRun(const Node& node) const { return &m_tree.names.at(node.value) == &names::run; }

/// Properties, handlers and what is global are known wherever they stand.
void CodeGenerator::collect() {
    for (NodeId id = m_tree.at(0).firstChild; id != noNode; id = m_tree.at(id).nextSibling) {
        const Node& node = m_tree.at(id);
        if (node.kind == NodeKind::property) {
            collectProperty(node);
        } else if (node.kind == NodeKind::handler) {
            collectHandler(node);
        } else {
            if (node.kind != NodeKind::declareGlobal && node.kind != NodeKind::declareLocal &&
                m_loose == nullptr) {
                m_loose = &node;
            }
            checkRun();
        }
        collectGlobals(id, false);
    }
}

void CodeGenerator::collectProperty(const Node& node) {
    if (!m_properties.emplace(node.value, node.offset).second) {
        m_out.fail(errornumber::propertyTwice, propertyTwice(m_tree.names.at(node.value).spelling),
                   node.offset);
    }
    m_out.script().makeVisible(node.value);
    m_out.script().slotOf(node.value);
}

/// Of one statement and what is in it, handlers aside.
void CodeGenerator::collectGlobals(NodeId first, bool insideHandler) {
    const Node& node = m_tree.at(first);
    if (node.kind == NodeKind::declareGlobal) {
        for (NodeId id = node.firstChild; id != noNode; id = m_tree.at(id).nextSibling) {
            const NameId name = m_tree.at(id).value;
            if (insideHandler) {
                m_sharedWithRun.push_back(name);
            } else {
                m_out.script().makeVisible(name);
            }
        }
        return;
    }
    const bool holdsStatements = node.kind == NodeKind::handler || node.kind == NodeKind::block ||
                                 node.kind == NodeKind::tell || node.kind == NodeKind::ifThen ||
                                 node.kind == NodeKind::tryBlock || node.kind == NodeKind::onError ||
                                 node.kind == NodeKind::considering || node.kind == NodeKind::timeout ||
                                 (node.kind >= NodeKind::repeat && node.kind <= NodeKind::repeatIn);
    if (!holdsStatements) return;
    const bool inside = insideHandler || (node.kind == NodeKind::handler && !isRun(node));
    for (NodeId id = node.firstChild; id != noNode; id = m_tree.at(id).nextSibling)
        collectGlobals(id, inside);
}

void CodeGenerator::collectHandler(const Node& node) {
    if (isRun(node)) {
        if (m_run != nullptr) m_loose = &node;
        m_run = m_run == nullptr ? &node : m_run;
        return checkRun();
    }
    if (m_handlers.emplace(node.value, node.offset).second) return;
    m_out.fail(errornumber::handlerTwice, handlerTwice(m_tree.names.at(node.value).spelling), node.offset);
}

/// The run handler and statements outside of handlers exclude each other.
void CodeGenerator::checkRun() {
    if (m_run == nullptr || m_loose == nullptr) return;
    m_out.fail(errornumber::handlerTwice, handlerTwice("run"), std::max(m_run->offset, m_loose->offset));
}

void CodeGenerator::runPart() {
    Scope scope(m_out.script());
    m_out.setScope(scope);
    for (const NameId name : m_sharedWithRun) scope.declareGlobal(name);
    const Node& root = m_tree.at(0);
    m_out.emit(Operation::enter, root);
    for (NodeId id = root.firstChild; id != noNode; id = m_tree.at(id).nextSibling) {
        const Node& node = m_tree.at(id);
        if (node.kind != NodeKind::property) continue;
        m_statements.expressions().expression(node.firstChild);
        const std::uint32_t slot = m_out.script().slotOf(node.value);
        m_out.script().use(slot).isSet = true;
        m_out.emit(Operation::storeGlobal, node, slot);
    }
    if (m_run != nullptr) {
        NodeId body = m_run->firstChild;
        if (m_tree.at(body).kind == NodeKind::parameter) {
            m_out.emit(Operation::pushList, *m_run);
            m_statements.expressions().assign(m_tree.at(body).firstChild, *m_run);
            body = m_tree.at(body).nextSibling;
        }
        m_statements.statements(m_tree.at(body).firstChild);
    } else {
        for (NodeId id = root.firstChild; id != noNode; id = m_tree.at(id).nextSibling) {
            const Node& node = m_tree.at(id);
            const NodeKind kind = node.kind;
            if (kind == NodeKind::property || kind == NodeKind::handler) continue;
            m_statements.statement(id, isFollowed(node));
        }
    }
    finish(Handler{}, scope, 0);
}

/// By another statement outside of handlers.
bool CodeGenerator::isFollowed(const Node& statement) const {
    for (NodeId id = statement.nextSibling; id != noNode; id = m_tree.at(id).nextSibling) {
        const NodeKind kind = m_tree.at(id).kind;
        if (kind != NodeKind::property && kind != NodeKind::handler) return true;
    }
    return false;
}

void CodeGenerator::handler(const Node& node) {
    Scope scope(m_out.script());
    m_out.setScope(scope);
    Handler handler;
    handler.name = node.value;
    handler.isLabelled = node.detail != 0;
    handler.start = m_out.position();
    const std::uint32_t enter = m_out.position();
    m_out.emit(Operation::enter, node);
    parameters(node, handler, scope);
    NodeId body = node.firstChild;
    while (m_tree.at(body).kind == NodeKind::parameter) body = m_tree.at(body).nextSibling;
    m_statements.statements(m_tree.at(body).firstChild);
    finish(std::move(handler), scope, enter);
}

/// The slots of all parameters come first; those that are lists of names are then taken apart.
void CodeGenerator::parameters(const Node& node, Handler& handler, Scope& scope) {
    std::set<NameId> seen;
    std::vector<std::pair<std::uint32_t, const Node*>> patterns;
    for (NodeId id = node.firstChild; m_tree.at(id).kind == NodeKind::parameter;
         id = m_tree.at(id).nextSibling) {
        const Node& pattern = m_tree.at(m_tree.at(id).firstChild);
        parameterName(m_tree.at(id).firstChild, seen);
        const NameId label = m_tree.at(id).value;
        const auto& labels = handler.labels;
        if (label != 0 && std::find(labels.begin(), labels.end(), label) != labels.end()) {
            failTwice(label, m_tree.at(id).offset);
        }
        handler.labels.push_back(label);
        if (pattern.kind == NodeKind::name) {
            handler.parameterNames.push_back(pattern.value);
            scope.addParameter(pattern.value);
        } else {
            handler.parameterNames.push_back(0);
            patterns.emplace_back(scope.addHidden(), &m_tree.at(id));
        }
    }
    for (const NameId name : seen) scope.declareLocal(name);
    for (const auto& [slot, parameter] : patterns) {
        m_out.emit(Operation::loadLocal, *parameter, slot);
        m_statements.expressions().assign(parameter->firstChild, *parameter);
    }
}

void CodeGenerator::parameterName(NodeId pattern, std::set<NameId>& seen) {
    const Node& node = m_tree.at(pattern);
    if (node.kind == NodeKind::list) {
        for (NodeId id = node.firstChild; id != noNode; id = m_tree.at(id).nextSibling)
            parameterName(id, seen);
        return;
    }
    if (!seen.insert(node.value).second) failTwice(node.value, node.offset);
}

/// Handlers may be called before they stand.
void CodeGenerator::resolveCalls() {
    Bytecode& code = m_out.code();
    std::unordered_map<NameId, std::uint32_t> indices;
    for (std::uint32_t i = 1; i < code.handlers.size(); ++i) indices.emplace(code.handlers[i].name, i);
    for (Call& call : code.calls) {
        const auto found = indices.find(call.name);
        if (found != indices.end()) {
            call.handler = found->second;
        } else {
            m_out.warn(call.offset, noHandlerAdvice(m_tree.names.at(call.name).spelling));
        }
    }
}

void CodeGenerator::failTwice(NameId parameter, std::uint32_t offset) {
    m_out.fail(errornumber::parameterTwice, parameterTwice(m_tree.names.at(parameter).spelling), offset);
}

/// A handler that comes to its end gives the value of its last statement.
void CodeGenerator::finish(Handler handler, const Scope& scope, std::uint32_t enter) {
    const Node& root = m_tree.at(0);
    m_out.emit(Operation::returnValue, root, 0, 1);
    m_names.lookAt(scope);
    m_out.code().instructions[enter].operand = static_cast<std::uint32_t>(scope.variables().size());
    handler.variables = scope.variables();
    m_out.code().handlers.push_back(std::move(handler));
}

}  // namespace script
