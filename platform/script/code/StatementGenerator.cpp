// SPDX-License-Identifier: MIT
#include "platform/script/code/StatementGenerator.h"

#include <utility>

#include "platform/Sentence.h"
#include "platform/script/commands/Command.h"
#include "platform/script/source/Scoped.h"
#include "platform/script/source/Wording.h"
#include "platform/script/syntax/Operators.h"

namespace script {

/// A loop while its code is emitted: at its end, all jumps out of it lead there.
class StatementGenerator::LoopScope {
  public:
    explicit LoopScope(StatementGenerator& generator)
        : m_generator(generator),
          m_outerExits(std::exchange(generator.m_exits, {})),
          m_undoneOutside(generator.m_undoneOutsideLoop, generator.m_undone.size()) {}
    ~LoopScope() {
        for (const std::uint32_t exit : m_generator.m_exits) m_generator.m_out.land(exit);
        m_generator.m_exits = std::move(m_outerExits);
    }
    LoopScope(const LoopScope&) = delete;
    LoopScope& operator=(const LoopScope&) = delete;

  private:
    StatementGenerator& m_generator;
    std::vector<std::uint32_t> m_outerExits;
    Scoped<std::size_t> m_undoneOutside;
};

/// What is begun here is undone at the end of the scope, and by jumps out of a loop around it.
class StatementGenerator::UndoneScope {
  public:
    UndoneScope(StatementGenerator& generator, const Node& node, Operation undo)
        : m_generator(generator), m_node(node) {
        m_generator.m_undone.push_back(undo);
    }
    ~UndoneScope() {
        m_generator.m_out.emit(m_generator.m_undone.back(), m_node);
        m_generator.m_undone.pop_back();
    }
    UndoneScope(const UndoneScope&) = delete;
    UndoneScope& operator=(const UndoneScope&) = delete;

  private:
    StatementGenerator& m_generator;
    const Node& m_node;
};

void StatementGenerator::statements(NodeId first) {
    const bool isFollowed = m_isFollowed;
    for (NodeId id = first; id != noNode; id = m_tree.at(id).nextSibling) {
        m_isFollowed = isFollowed || m_tree.at(id).nextSibling != noNode;
        statement(id);
    }
    m_isFollowed = isFollowed;
}

void StatementGenerator::statement(NodeId id, bool isFollowed) {
    const Scoped<bool> followed(m_isFollowed, isFollowed);
    statement(id);
}

void StatementGenerator::statement(NodeId id) {
    const Node& node = m_tree.at(id);
    switch (node.kind) {
        case NodeKind::tell:
            return tell(node);
        case NodeKind::ifThen:
            return ifThen(node);
        case NodeKind::repeat:
            return repeatForEver(node);
        case NodeKind::repeatTimes:
            return repeatTimes(node);
        case NodeKind::repeatWhile:
            return repeatWhile(node);
        case NodeKind::repeatRange:
            return repeatRange(node);
        case NodeKind::repeatIn:
            return repeatIn(node);
        case NodeKind::exitRepeat:
            return exitRepeat(node);
        case NodeKind::tryBlock:
            return tryBlock(node);
        case NodeKind::raise:
            return raise(node);
        case NodeKind::returnValue:
            return returnValue(node);
        case NodeKind::set:
        case NodeKind::copy:
            return set(node);
        case NodeKind::declareGlobal:
        case NodeKind::declareLocal:
            return declare(node);
        case NodeKind::considering:
            return considering(node);
        case NodeKind::timeout:
            return timeout(node);
        case NodeKind::block:
            return statements(node.firstChild);
        default:
            return evaluate(node);
    }
}

void StatementGenerator::tell(const Node& node) {
    m_expressions.expressionAs(NameRole::application, node.firstChild);
    m_out.emit(Operation::pushTarget, m_tree.at(node.firstChild));
    const NodeKind kind = m_tree.at(node.firstChild).kind;
    const bool isSystemEvents = m_tree.at(node.firstChild).detail != 0;
    const Scoped<bool> program(m_tellsProgram, kind == NodeKind::application && !isSystemEvents);
    const Scoped<bool> process(m_tellsProcess, kind == NodeKind::process || kind == NodeKind::processes);
    const UndoneScope target(*this, node, Operation::popTarget);
    block(m_tree.at(node.firstChild).nextSibling);
}

void StatementGenerator::ifThen(const Node& node) {
    std::vector<std::uint32_t> ends;
    NodeId id = node.firstChild;
    while (m_tree.at(id).nextSibling != noNode) {
        m_expressions.expression(id);
        const std::uint32_t next = m_out.emitJump(Operation::jumpIfFalse, m_tree.at(id));
        const NodeId body = m_tree.at(id).nextSibling;
        block(body);
        id = m_tree.at(body).nextSibling;
        if (id != noNode) ends.push_back(m_out.emitJump(Operation::jump, node));
        m_out.land(next);
        if (id == noNode) break;
    }
    if (id != noNode) block(id);
    for (const std::uint32_t end : ends) m_out.land(end);
}

/// The body and the jump back to its start.
void StatementGenerator::loop(const Node& node, NodeId body, std::uint32_t start) {
    const Scoped<bool> followed(m_isFollowed, true);
    block(body);
    m_out.emit(Operation::jump, node, start);
}

/// What a loop kept on the stack: whichever way the loop ends, it is dropped there.
void StatementGenerator::drop(const Node& node, int count) {
    for (int i = 0; i < count; ++i) m_out.emit(Operation::drop, node);
}

void StatementGenerator::repeatForEver(const Node& node) {
    const LoopScope scope(*this);
    loop(node, node.firstChild, m_out.position());
}

/// The counter lies on the stack while the loop runs.
void StatementGenerator::repeatTimes(const Node& node) {
    {
        const LoopScope scope(*this);
        wholeNumber(node.firstChild);
        const std::uint32_t start = m_out.position();
        m_exits.push_back(m_out.emitJump(Operation::countDown, node));
        loop(node, m_tree.at(node.firstChild).nextSibling, start);
    }
    drop(node, 1);
}

void StatementGenerator::repeatWhile(const Node& node) {
    const LoopScope scope(*this);
    const std::uint32_t start = m_out.position();
    const Node& condition = m_tree.at(node.firstChild);
    m_expressions.expression(node.firstChild);
    const std::uint32_t leave = m_out.emitJump(Operation::jumpIfFalse, condition);
    if (node.detail != 0) {
        // The other way round: true leaves.
        const std::uint32_t enter = leave;
        m_exits.push_back(m_out.emitJump(Operation::jump, condition));
        m_out.land(enter);
    } else {
        m_exits.push_back(leave);
    }
    loop(node, condition.nextSibling, start);
}

void StatementGenerator::wholeNumber(NodeId id) {
    m_expressions.expression(id);
    m_out.emit(Operation::makeCount, m_tree.at(id));
}

/// The next number, the last one and the step lie on the stack.
void StatementGenerator::repeatRange(const Node& node) {
    const NodeId body = range(node);
    {
        const LoopScope scope(*this);
        const std::uint32_t start = m_out.position();
        m_exits.push_back(m_out.emitJump(Operation::nextInRange, node));
        m_expressions.assignName(node.value, node);
        loop(node, body, start);
    }
    drop(node, 3);
}

/// From, to and step; the body behind them.
NodeId StatementGenerator::range(const Node& node) {
    const NodeId from = node.firstChild;
    const NodeId to = m_tree.at(from).nextSibling;
    NodeId body = m_tree.at(to).nextSibling;
    wholeNumber(from);
    wholeNumber(to);
    if (m_tree.at(body).nextSibling != noNode) {
        wholeNumber(body);
        body = m_tree.at(body).nextSibling;
    } else {
        m_out.emit(Operation::pushInteger, node, 1);
    }
    m_out.emit(Operation::beginRange, node);
    return body;
}

/// The list, how many items it had, and how many are done lie on the stack.
void StatementGenerator::repeatIn(const Node& node) {
    m_expressions.expression(node.firstChild);
    m_out.emit(Operation::beginList, m_tree.at(node.firstChild));
    {
        const LoopScope scope(*this);
        const std::uint32_t start = m_out.position();
        m_exits.push_back(m_out.emitJump(Operation::nextInList, node));
        m_expressions.assignName(node.value, node, Held::item);
        loop(node, m_tree.at(node.firstChild).nextSibling, start);
    }
    drop(node, 3);
}

/// What was begun inside the loop is undone first.
void StatementGenerator::exitRepeat(const Node& node) {
    for (std::size_t i = m_undone.size(); i > m_undoneOutsideLoop; --i) m_out.emit(m_undone[i - 1], node);
    m_exits.push_back(m_out.emitJump(Operation::jump, node));
}

void StatementGenerator::tryBlock(const Node& node) {
    const NodeId body = node.firstChild;
    const std::uint32_t begin = m_out.emitJump(Operation::pushTry, node);
    {
        const UndoneScope attempt(*this, node, Operation::popTry);
        block(body);
    }
    const std::uint32_t end = m_out.emitJump(Operation::jump, node);
    m_out.land(begin);
    const NodeId handler = m_tree.at(body).nextSibling;
    if (handler != noNode) {
        onError(m_tree.at(handler));
    } else {
        m_out.emit(Operation::clearResult, node);
    }
    m_out.land(end);
}

void StatementGenerator::onError(const Node& node) {
    std::vector<std::uint32_t> mismatches;
    NodeId id = node.firstChild;
    for (; m_tree.at(id).kind == NodeKind::errorPart; id = m_tree.at(id).nextSibling) {
        errorPart(m_tree.at(id), mismatches);
    }
    block(id);
    if (mismatches.empty()) return;
    const std::uint32_t end = m_out.emitJump(Operation::jump, node);
    for (const std::uint32_t mismatch : mismatches) m_out.land(mismatch);
    m_out.emit(Operation::rethrow, node);
    m_out.land(end);
}

/// Put into a variable, or compared with a value.
void StatementGenerator::errorPart(const Node& node, std::vector<std::uint32_t>& mismatches) {
    m_out.emit(Operation::pushErrorPart, node, 0, node.detail);
    const NodeKind kind = m_tree.at(node.firstChild).kind;
    const bool isValue = kind == NodeKind::integer || kind == NodeKind::real || kind == NodeKind::text ||
                         kind == NodeKind::negation;
    if (!isValue) return m_expressions.assign(node.firstChild, node);
    m_expressions.expression(node.firstChild);
    m_out.emit(Operation::binary, node, 0, static_cast<std::uint8_t>(BinaryOperator::equal));
    mismatches.push_back(m_out.emitJump(Operation::jumpIfFalse, node));
}

void StatementGenerator::raise(const Node& node) {
    std::uint8_t parts = 0;
    for (unsigned part = 0; part <= static_cast<unsigned>(ErrorPart::to); ++part) {
        for (NodeId id = node.firstChild; id != noNode; id = m_tree.at(id).nextSibling) {
            if (m_tree.at(id).detail != part || (parts & (1U << part)) != 0) continue;
            m_expressions.expression(m_tree.at(id).firstChild);
            if (part == static_cast<unsigned>(ErrorPart::number)) {
                m_out.emit(Operation::makeCount, m_tree.at(m_tree.at(id).firstChild));
            }
            parts = static_cast<std::uint8_t>(parts | (1U << part));
        }
    }
    m_out.emit(Operation::raise, node, 0, parts);
}

void StatementGenerator::returnValue(const Node& node) {
    if (node.firstChild == noNode) {
        m_out.emit(Operation::pushNothing, node);
    } else {
        m_expressions.expression(node.firstChild);
    }
    m_out.emit(Operation::returnValue, node);
}

/// The value comes first, so that names can change places.
void StatementGenerator::set(const Node& node) {
    m_expressions.expression(m_tree.at(node.firstChild).nextSibling);
    if (node.kind == NodeKind::copy) m_out.emit(Operation::deepCopy, node);
    m_out.emit(Operation::duplicate, node);
    const Node& target = m_tree.at(node.firstChild);
    if (isFrontmostOfTarget(target)) {
        m_out.emit(Operation::pushIt, node);
        m_out.emit(Operation::setProperty, node, target.value);
    } else if (target.kind == NodeKind::name) {
        m_expressions.assignName(target.value, node, heldFrom(m_tree.at(target.nextSibling)));
    } else {
        m_expressions.assign(node.firstChild, node);
    }
    m_out.emit(Operation::setResult, node);
}

/// What a variable holds that is set to the value.
Held StatementGenerator::heldFrom(const Node& value) {
    return value.kind == NodeKind::command ? commands()[value.value]->gives : Held::other;
}

/// `tell process "X" to set frontmost to true`, unless the script has a variable of that name.
bool StatementGenerator::isFrontmostOfTarget(const Node& target) const {
    return m_tellsProcess && target.kind == NodeKind::name &&
           &m_tree.names.at(target.value) == &names::frontmost && !m_out.scope().knows(target.value);
}

void StatementGenerator::evaluate(const Node& node) {
    const Node& value = m_tree.at(node.firstChild);
    if (value.kind == NodeKind::name) {
        m_expressions.nameAs(m_tellsProgram ? NameRole::program : NameRole::statement, value.offset);
    } else if (m_isFollowed && compares(value)) {
        warnOfComparison(value);
    }
    m_expressions.statementValue(node.firstChild);
    m_out.emit(Operation::setResult, node);
}

bool StatementGenerator::compares(const Node& node) {
    return node.kind == NodeKind::binary && static_cast<BinaryOperator>(node.detail) == BinaryOperator::equal;
}

/// `x = 5`, where something else may have been meant.
void StatementGenerator::warnOfComparison(const Node& node) {
    const Node& left = m_tree.at(node.firstChild);
    const bool isName = left.kind == NodeKind::name;
    if (!isName && left.kind != NodeKind::element && left.kind != NodeKind::propertyOf) return;
    if (isName) m_expressions.nameAs(NameRole::compared, left.offset);
    m_out.warn(left.offset, comparisonAdvice(isName ? m_tree.names.at(left.value).spelling : ""));
}

void StatementGenerator::declare(const Node& node) {
    const bool isGlobal = node.kind == NodeKind::declareGlobal;
    for (NodeId id = node.firstChild; id != noNode; id = m_tree.at(id).nextSibling) {
        const Node& name = m_tree.at(id);
        const bool declared =
            isGlobal ? m_out.scope().declareGlobal(name.value) : m_out.scope().declareLocal(name.value);
        if (declared) continue;
        m_out.fail(errornumber::localAndGlobal,
                   sentence("ScriptErrors", "Can’t declare %1 as both a local and global variable.")
                       .arg(shortened(m_tree.names.at(name.value).spelling)),
                   name.offset);
    }
}

void StatementGenerator::considering(const Node& node) {
    m_out.emit(Operation::pushAttributes, node, node.value);
    const UndoneScope attributes(*this, node, Operation::popAttributes);
    block(node.firstChild);
}

void StatementGenerator::timeout(const Node& node) {
    m_expressions.expression(node.firstChild);
    m_out.emit(Operation::expectNumber, m_tree.at(node.firstChild));
    block(m_tree.at(node.firstChild).nextSibling);
}

}  // namespace script
