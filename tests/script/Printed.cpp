// SPDX-License-Identifier: MIT
#include "script/Printed.h"

#include <map>
#include <sstream>

#include "platform/Modifiers.h"
#include "platform/script/commands/Command.h"
#include "platform/script/source/Lexer.h"
#include "platform/script/syntax/Operators.h"
#include "platform/script/syntax/Parser.h"

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
    static const std::map<BinaryOperator, const char*> names = {{BinaryOperator::power, "^"},
                                                                {BinaryOperator::times, "*"},
                                                                {BinaryOperator::over, "/"},
                                                                {BinaryOperator::div, "div"},
                                                                {BinaryOperator::mod, "mod"},
                                                                {BinaryOperator::plus, "+"},
                                                                {BinaryOperator::minus, "-"},
                                                                {BinaryOperator::join, "&"},
                                                                {BinaryOperator::less, "<"},
                                                                {BinaryOperator::lessOrEqual, "<="},
                                                                {BinaryOperator::greater, ">"},
                                                                {BinaryOperator::greaterOrEqual, ">="},
                                                                {BinaryOperator::equal, "="},
                                                                {BinaryOperator::contains, "contains"},
                                                                {BinaryOperator::startsWith, "starts"},
                                                                {BinaryOperator::endsWith, "ends"},
                                                                {BinaryOperator::isIn, "in"},
                                                                {BinaryOperator::both, "and"},
                                                                {BinaryOperator::either, "or"}};
    return names.at(static_cast<BinaryOperator>(detail));
}

const char* formName(NodeKind kind) {
    static const std::map<NodeKind, const char*> names = {
        {NodeKind::tell, "tell"},
        {NodeKind::ifThen, "if"},
        {NodeKind::block, "do"},
        {NodeKind::repeat, "repeat"},
        {NodeKind::repeatTimes, "repeat-times"},
        {NodeKind::repeatWhile, "repeat-while"},
        {NodeKind::repeatRange, "repeat-from"},
        {NodeKind::repeatIn, "repeat-in"},
        {NodeKind::exitRepeat, "exit"},
        {NodeKind::tryBlock, "try"},
        {NodeKind::onError, "on-error"},
        {NodeKind::errorPart, "part"},
        {NodeKind::raise, "error"},
        {NodeKind::returnValue, "return"},
        {NodeKind::set, "set"},
        {NodeKind::copy, "copy"},
        {NodeKind::evaluate, "evaluate"},
        {NodeKind::declareGlobal, "global"},
        {NodeKind::declareLocal, "local"},
        {NodeKind::property, "property"},
        {NodeKind::handler, "handler"},
        {NodeKind::parameter, "parameter"},
        {NodeKind::considering, "considering"},
        {NodeKind::timeout, "timeout"},
        {NodeKind::process, "process"},
        {NodeKind::list, "list"},
        {NodeKind::record, "record"},
        {NodeKind::field, "field"},
        {NodeKind::negation, "negate"},
        {NodeKind::inversion, "not"},
        {NodeKind::coercion, "as"},
        {NodeKind::element, "element"},
        {NodeKind::textBetween, "text-between"},
        {NodeKind::propertyOf, "property-of"},
        {NodeKind::referenceTo, "reference-to"},
        {NodeKind::contentsOf, "contents-of"},
        {NodeKind::characterId, "character-id"},
        {NodeKind::call, "call"},
        {NodeKind::callTo, "call-to"},
        {NodeKind::argument, "given"},
    };
    return names.at(kind);
}

/// "item", "every character", "items 2 thru 3" without its numbers.
std::string elementName(const Node& node) {
    static const char* const kinds[] = {"item",      "character", "word", "paragraph",
                                        "text-item", "text",      "typed"};
    static const char* const forms[] = {"", "middle-", "some-", "every-", "range-"};
    return std::string(forms[node.detail & script::elementnode::formMask]) +
           kinds[node.detail >> script::elementnode::kindShift];
}

/// The words behind the bracket: what the node is, and its name if it has one.
std::string headOf(const script::Tree& tree, const Node& node) {
    const auto name = [&] { return " " + tree.names.at(node.value).spelling; };
    switch (node.kind) {
        case NodeKind::binary:
            return operatorName(node.detail);
        case NodeKind::element:
            return elementName(node);
        case NodeKind::coercion:
            return "as " + std::string(script::typeName(static_cast<script::Type>(node.detail)));
        case NodeKind::command: {
            std::string command(script::commands()[node.value]->name.spelling());
            for (char& c : command) c = c == ' ' ? '-' : c;
            return command;
        }
        case NodeKind::repeatWhile:
            return node.detail != 0 ? "repeat-until" : "repeat-while";
        case NodeKind::repeatRange:
        case NodeKind::repeatIn:
        case NodeKind::property:
        case NodeKind::handler:
        case NodeKind::field:
        case NodeKind::propertyOf:
        case NodeKind::call:
            return formName(node.kind) + name();
        default:
            return formName(node.kind);
    }
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
            out << "name " << tree.names.at(node.value).spelling;
            break;
        case NodeKind::predefined:
            out << "known " << tree.names.at(node.value).spelling;
            break;
        case NodeKind::truth:
            out << (node.value != 0 ? "true" : "false");
            break;
        case NodeKind::missingValue:
            out << "missing";
            break;
        case NodeKind::me:
            out << "me";
            break;
        case NodeKind::it:
            out << "it";
            break;
        case NodeKind::result:
            out << "result";
            break;
        case NodeKind::delimiters:
            out << "delimiters";
            break;
        case NodeKind::appleScript:
            out << "applescript";
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

std::string printedNode(const script::Tree& tree, NodeId id);

std::string printedChildren(const script::Tree& tree, NodeId id) {
    std::string out;
    for (NodeId child = tree.at(id).firstChild; child != script::noNode; child = tree.at(child).nextSibling) {
        out += (out.empty() ? "" : " ") + printedNode(tree, child);
    }
    return out;
}

std::string printedNode(const script::Tree& tree, NodeId id) {
    const Node& node = tree.at(id);
    const bool isCommand =
        node.kind == NodeKind::evaluate && tree.at(node.firstChild).kind == NodeKind::command;
    if (isCommand) return printedNode(tree, node.firstChild);
    if (std::string text = leaf(tree, node); !text.empty()) return text;
    // Blocks and arguments of commands show what they hold.
    if (node.kind == NodeKind::argument && node.detail == 0 &&
        tree.at(node.firstChild).nextSibling == script::noNode) {
        return printedNode(tree, node.firstChild);
    }
    std::string out = "(" + headOf(tree, node);
    const bool showsBlocks = node.kind == NodeKind::ifThen || node.kind == NodeKind::tryBlock;
    for (NodeId child = node.firstChild; child != script::noNode; child = tree.at(child).nextSibling) {
        const bool isOpen = tree.at(child).kind == NodeKind::block && !showsBlocks;
        const std::string text = isOpen ? printedChildren(tree, child) : printedNode(tree, child);
        out += (text.empty() ? "" : " ") + text;
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
    return printedChildren(tree, 0);
}

std::string printedError(std::string_view source) {
    script::Parser parser(source);
    parser.parse();
    if (!parser.error()) return "";
    const script::ScriptError& error = *parser.error();
    return std::to_string(error.location.line) + ":" + std::to_string(error.location.column) + " " +
           std::to_string(error.number) + " " + error.message.text();
}
