// SPDX-License-Identifier: MIT
#include "Printed.h"

#include <map>
#include <sstream>

#include "platform/Modifiers.h"
#include "platform/script/Lexer.h"
#include "platform/script/Operators.h"
#include "platform/script/Parser.h"

namespace {

using script::BinaryOperator;
using script::Node;
using script::NodeId;
using script::NodeKind;
using script::TokenKind;

std::string printedToken(const script::Token& token) {
    switch (token.kind) {
        case TokenKind::endOfScript:
            return "END";
        case TokenKind::endOfLine:
            return "NL";
        case TokenKind::unknown:
            return "<unknown " + std::string(token.text) + ">";
        case TokenKind::rawCode:
            return "<raw code>";
        case TokenKind::openText:
            return "<open text>";
        case TokenKind::openComment:
            return "<open comment>";
        case TokenKind::strayContinuation:
            return "<stray continuation>";
        default:
            return std::string(token.text);
    }
}

const char* modifierName(std::uint32_t modifier) {
    static const std::map<std::uint32_t, const char*> names = {{modifier::command, "command"},
                                                               {modifier::control, "control"},
                                                               {modifier::option, "option"},
                                                               {modifier::shift, "shift"}};
    return names.at(modifier);
}

const char* operatorName(std::uint8_t detail) {
    static const std::map<BinaryOperator, const char*> names = {
        {BinaryOperator::power, "^"}, {BinaryOperator::times, "*"}, {BinaryOperator::over, "/"},
        {BinaryOperator::div, "div"}, {BinaryOperator::mod, "mod"}, {BinaryOperator::plus, "+"},
        {BinaryOperator::minus, "-"}, {BinaryOperator::join, "&"}};
    return names.at(static_cast<BinaryOperator>(detail));
}

const char* formName(NodeKind kind) {
    static const std::map<NodeKind, const char*> names = {
        {NodeKind::tell, "tell"},           {NodeKind::keyCode, "key-code"},
        {NodeKind::keystroke, "keystroke"}, {NodeKind::keyDown, "key-down"},
        {NodeKind::keyUp, "key-up"},        {NodeKind::delay, "delay"},
        {NodeKind::repeat, "repeat"},       {NodeKind::repeatTimes, "repeat-times"},
        {NodeKind::exitRepeat, "exit"},     {NodeKind::evaluate, "evaluate"},
        {NodeKind::process, "process"},     {NodeKind::list, "list"},
        {NodeKind::negation, "negate"}};
    return names.at(kind);
}

std::string leaf(const script::Tree& tree, const Node& node) {
    std::ostringstream out;
    switch (node.kind) {
        case NodeKind::integer:
            out << node.value;
            break;
        case NodeKind::real:
            out << "real " << tree.reals[node.value];
            break;
        case NodeKind::text:
            out << '"' << tree.texts[node.value] << '"';
            break;
        case NodeKind::name:
            out << "name " << tree.texts[node.value];
            break;
        case NodeKind::modifierDown:
            out << modifierName(node.value) << "-down";
            break;
        case NodeKind::modifierKey:
            out << modifierName(node.value);
            break;
        case NodeKind::application:
            out << (node.detail == 1 ? "system-events " : "application ") << tree.texts[node.value];
            break;
        default:
            break;
    }
    return out.str();
}

std::string printedNode(const script::Tree& tree, NodeId id) {
    const Node& node = tree.at(id);
    if (std::string text = leaf(tree, node); !text.empty()) return text;
    std::string out = "(";
    out += node.kind == NodeKind::binary ? operatorName(node.detail) : formName(node.kind);
    for (NodeId child = node.firstChild; child != script::noNode; child = tree.at(child).nextSibling) {
        out += " " + printedNode(tree, child);
    }
    return out + ")";
}

}  // namespace

std::string printedTokens(std::string_view source) {
    script::Lexer lexer(source);
    std::string out;
    for (script::Token token = lexer.next();; token = lexer.next()) {
        out += printedToken(token);
        if (token.is(TokenKind::endOfScript)) return out;
        out += " ";
    }
}

std::string printedTree(std::string_view source) {
    script::Parser parser(source);
    const script::Tree& tree = parser.parse();
    if (parser.error()) return parser.error()->message;
    std::string out;
    for (NodeId child = tree.at(0).firstChild; child != script::noNode; child = tree.at(child).nextSibling) {
        out += (out.empty() ? "" : " ") + printedNode(tree, child);
    }
    return out;
}

std::string printedError(std::string_view source) {
    script::Parser parser(source);
    parser.parse();
    if (!parser.error()) return "";
    const script::ScriptError& error = *parser.error();
    return std::to_string(error.location.line) + ":" + std::to_string(error.location.column) + " " +
           std::to_string(error.number) + " " + error.message;
}
