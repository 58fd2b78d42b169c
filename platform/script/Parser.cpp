// SPDX-License-Identifier: MIT
#include "platform/script/Parser.h"

#include <array>

#include "platform/script/Scoped.h"
#include "platform/script/SystemEvents.h"

namespace script {

Parser::Parser(std::string_view source) : m_tokens(source), m_expressions(m_tokens, m_tree) {}

const Tree& Parser::parse() {
    const NodeId root = m_tree.add(NodeKind::script, 0);
    ChildList statements(m_tree, root);
    statementsToEnd(statements);
    if (!m_tokens.isAt(TokenKind::endOfScript)) m_tokens.expected("expression");
    return m_tree;
}

/// Statements up to an `end` or the end of the script, which stay.
void Parser::statementsToEnd(ChildList& children) {
    while (!m_tokens.isAt(TokenKind::endOfScript) && !m_tokens.isAt(Word::end)) {
        if (m_tokens.accept(TokenKind::endOfLine)) continue;
        children.append(statement());
        endStatement();
    }
}

void Parser::endStatement() {
    if (m_tokens.isAtLineEnd()) {
        m_tokens.accept(TokenKind::endOfLine);
    } else {
        m_tokens.expected("end of line");
    }
}

NodeId Parser::statement() {
    const Nesting nesting(m_tokens);
    if (refuseForbidden()) return noNode;
    if (m_tokens.isAt(Word::tell)) return tell();
    if (m_tokens.isAt(Word::key, Word::code)) return keyCode();
    if (m_tokens.isAt(Word::keystroke)) return keystroke();
    if (m_tokens.isAt(Word::key, Word::down)) return holding(NodeKind::keyDown);
    if (m_tokens.isAt(Word::key, Word::up)) return holding(NodeKind::keyUp);
    if (m_tokens.isAt(Word::delay)) return delay();
    if (m_tokens.isAt(Word::repeat)) return repeat();
    if (m_tokens.isAt(Word::exit)) return exitRepeat();
    return evaluate();
}

/// Why: people pass macros on to each other. A macro presses keys; it does not run programs.
bool Parser::refuseForbidden() {
    const bool shell = m_tokens.isAt(Word::doWord, Word::shell);
    if (!shell && !m_tokens.isAt(Word::run, Word::script) && !m_tokens.isAt(Word::load, Word::script))
        return false;
    const std::string first(spellingOf(m_tokens.current().word));
    const std::string command = shell ? "do shell script" : first + " script";
    m_tokens.fail(errornumber::syntax,
                  "“" + command + "” is refused: a macro can press keys and nothing else.");
    return true;
}

/// tell = tell target to statement | tell target block
NodeId Parser::tell() {
    const NodeId node = m_tree.add(NodeKind::tell, m_tokens.offset());
    const Scoped<int> tells(m_tells, m_tells + 1);
    if (m_tells > maxTells) m_tokens.fail(errornumber::tellTooDeep, "Tell statements are nested too deeply.");
    m_tokens.advance();
    const bool knewTerms = m_tokens.knowsTerms();
    ChildList children(m_tree, node);
    children.append(target());
    tellBody(children);
    m_tokens.setKnowsTerms(knewTerms);
    return node;
}

void Parser::tellBody(ChildList& children) {
    if (m_tokens.accept(Word::to)) {
        children.append(statement());
    } else if (m_tokens.isAtLineEnd()) {
        block(children, Word::tell);
    } else {
        m_tokens.expected("end of line");
    }
}

/// target = application | process
NodeId Parser::target() {
    m_tokens.skipFiller();
    if (m_tokens.isAt(Word::process) || m_tokens.isAt(Word::application, Word::process)) return process();
    if (m_tokens.isAt(Word::application) || m_tokens.isAt(Word::app)) return application();
    m_tokens.expected("“application”");
    return noNode;
}

/// application = ( application | app ) [id] text. Its dictionary is in force from here.
NodeId Parser::application() {
    const std::uint32_t offset = m_tokens.offset();
    m_tokens.advance();
    const bool byIdentifier = m_tokens.accept(Word::id);
    const NodeId literal = m_expressions.textLiteral();
    if (m_tokens.failed()) return noNode;
    const std::uint32_t name = m_tree.at(literal).value;
    const bool systemEvents = isSystemEvents(m_tree.texts[name], byIdentifier);
    const NodeId node = m_tree.add(NodeKind::application, offset, name);
    m_tree.nodes[node].detail = systemEvents ? 1 : 0;
    m_tokens.setKnowsTerms(systemEvents);
    return node;
}

/// process = [application] process expression. Keys go to whatever is in front, whoever is told.
NodeId Parser::process() {
    const NodeId node = m_tree.add(NodeKind::process, m_tokens.offset());
    m_tokens.accept(Word::application);
    m_tokens.advance();
    ChildList(m_tree, node).append(m_expressions.expression());
    return node;
}

/// key code = key code expression [using]
NodeId Parser::keyCode() {
    const NodeId node = m_tree.add(NodeKind::keyCode, m_tokens.offset());
    m_tokens.accept(Word::key, Word::code);
    ChildList children(m_tree, node);
    children.append(m_expressions.expression());
    usingClause(children);
    return node;
}

/// keystroke = keystroke expression [using]
NodeId Parser::keystroke() {
    const NodeId node = m_tree.add(NodeKind::keystroke, m_tokens.offset());
    m_tokens.advance();
    ChildList children(m_tree, node);
    children.append(m_expressions.expression());
    usingClause(children);
    return node;
}

/// using = using expression
void Parser::usingClause(ChildList& children) {
    m_tokens.skipFiller();
    if (m_tokens.accept(Word::usingWord)) children.append(m_expressions.expression());
}

/// key down = key down expression, key up = key up expression
NodeId Parser::holding(NodeKind kind) {
    const NodeId node = m_tree.add(kind, m_tokens.offset());
    m_tokens.advance();
    m_tokens.advance();
    ChildList(m_tree, node).append(m_expressions.expression());
    return node;
}

/// delay = delay [expression]
NodeId Parser::delay() {
    const NodeId node = m_tree.add(NodeKind::delay, m_tokens.offset());
    m_tokens.advance();
    if (!m_tokens.isAtLineEnd()) ChildList(m_tree, node).append(m_expressions.expression());
    return node;
}

/// repeat = repeat [expression [times]] block
NodeId Parser::repeat() {
    const NodeId node = m_tree.add(NodeKind::repeat, m_tokens.offset());
    m_tokens.advance();
    ChildList children(m_tree, node);
    if (!m_tokens.isAtLineEnd()) {
        m_tree.nodes[node].kind = NodeKind::repeatTimes;
        children.append(m_expressions.expression());
        m_tokens.accept(Word::times);
    }
    const Scoped<int> loops(m_loops, m_loops + 1);
    block(children, Word::repeat);
    return node;
}

/// exit = exit [repeat], inside a loop
NodeId Parser::exitRepeat() {
    const NodeId node = m_tree.add(NodeKind::exitRepeat, m_tokens.offset());
    if (m_loops == 0) {
        m_tokens.fail(errornumber::exitOutsideRepeat, "Exit statement was not in a repeat loop.");
    }
    m_tokens.advance();
    m_tokens.accept(Word::repeat);
    return node;
}

NodeId Parser::evaluate() {
    const NodeId node = m_tree.add(NodeKind::evaluate, m_tokens.offset());
    ChildList(m_tree, node).append(m_expressions.expression());
    return node;
}

void Parser::block(ChildList& children, Word word) {
    if (!m_tokens.isAtLineEnd()) m_tokens.expected("end of line");
    statementsToEnd(children);
    endOf(word);
}

/// The word may be left out; another block's word means that the blocks cross.
void Parser::endOf(Word word) {
    if (m_tokens.isAt(Word::end) && m_tokens.ahead().is(TokenKind::identifier) &&
        !m_tokens.ahead().is(word)) {
        m_tokens.expected("“end”");
        return;
    }
    if (!m_tokens.accept(Word::end)) m_tokens.expected("“end”");
    m_tokens.accept(word);
}

}  // namespace script
