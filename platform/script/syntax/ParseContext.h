// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/script/source/TokenStream.h"
#include "platform/script/syntax/Node.h"

namespace script {

/// What all parsers share: the tokens, the tree, and what is in force where they read.
///
/// What is in force changes by a scope alone, and is behind it as it was before. A handler needs none: it
/// stands at the top, where nothing is in force.
class ParseContext {
  public:
    static constexpr int maxDepth = 200;
    static constexpr int maxTells = 32;

    /// The source outlives the context.
    explicit ParseContext(std::string_view source) : m_source(source), m_tokens(source) {}

    std::string_view source() const { return m_source; }
    TokenStream& tokens() { return m_tokens; }
    const TokenStream& tokens() const { return m_tokens; }
    Tree& tree() { return m_tree; }

    bool isInLoop() const { return m_inForce.loops > 0; }
    /// Whether `in` stands before a parameter of a command, and not before a container.
    bool inIsLabel() const { return m_inForce.inIsLabel; }
    /// Whether `as` stands before a parameter of a command, and not before a class.
    bool asIsLabel() const { return m_inForce.asIsLabel; }
    /// Whether a target is read, in which commands are names.
    bool readsTarget() const { return m_inForce.readsTarget; }

  private:
    friend class NestingScope;
    friend class ParseScope;

    struct InForce {
        int tells = 0;
        int loops = 0;
        bool inIsLabel = false;
        bool asIsLabel = false;
        bool readsTarget = false;
    };

    std::string_view m_source;
    TokenStream m_tokens;
    Tree m_tree;
    InForce m_inForce;
    int m_depth = 0;
};

/// One level of nesting. The parsers descend by recursion, so the depth is bounded: a script cannot overflow
/// the stack.
class NestingScope {
  public:
    /// Fails the stream of tokens at the bound.
    explicit NestingScope(ParseContext& context) : m_context(context) {
        if (++m_context.m_depth > ParseContext::maxDepth) refuse();
    }
    ~NestingScope() { --m_context.m_depth; }
    NestingScope(const NestingScope&) = delete;
    NestingScope& operator=(const NestingScope&) = delete;

  private:
    void refuse();

    ParseContext& m_context;
};

/// What every scope does: at its end, all that is in force is as it was before.
class ParseScope {
  public:
    ParseScope(const ParseScope&) = delete;
    ParseScope& operator=(const ParseScope&) = delete;

  protected:
    explicit ParseScope(ParseContext& context) : m_context(context), m_former(context.m_inForce) {}
    ~ParseScope() { m_context.m_inForce = m_former; }

    ParseContext::InForce& inForce() { return m_context.m_inForce; }
    TokenStream& tokens() { return m_context.m_tokens; }

  private:
    ParseContext& m_context;
    ParseContext::InForce m_former;
};

/// Where another dictionary may be in force.
class DictionaryScope : public ParseScope {
  public:
    explicit DictionaryScope(ParseContext& context)
        : ParseScope(context), m_knew(context.tokens().knowsDictionary()) {}
    ~DictionaryScope() { tokens().setKnowsDictionary(m_knew); }
    DictionaryScope(const DictionaryScope&) = delete;
    DictionaryScope& operator=(const DictionaryScope&) = delete;

    /// From here to the end of the scope the dictionary of System Events is known, or is not.
    void setKnown(bool known) { tokens().setKnowsDictionary(known); }

  private:
    bool m_knew;
};

/// A `tell`, from its first word to its last one.
class TellScope : public DictionaryScope {
  public:
    /// Fails the stream of tokens at the bound.
    explicit TellScope(ParseContext& context);
};

/// The body of a loop.
class LoopScope : public ParseScope {
  public:
    explicit LoopScope(ParseContext& context) : ParseScope(context) { ++inForce().loops; }
};

/// What is set, or takes a part of an error.
class TargetScope : public ParseScope {
  public:
    explicit TargetScope(ParseContext& context) : ParseScope(context) { inForce().readsTarget = true; }
};

/// An argument of a command, which may end at a label that is a word of expressions, too.
class ArgumentScope : public ParseScope {
  public:
    struct Labels {
        bool in = false;
        bool as = false;
    };

    ArgumentScope(ParseContext& context, Labels labels) : ParseScope(context) {
        inForce().inIsLabel = inForce().inIsLabel || labels.in;
        inForce().asIsLabel = labels.as;
    }
};

/// Between parentheses or braces, where no command's `as` can stand.
class BracketScope : public ParseScope {
  public:
    explicit BracketScope(ParseContext& context) : ParseScope(context) { inForce().asIsLabel = false; }
};

/// Between the parentheses of a call, where no command's `in` can stand.
class CallScope : public ParseScope {
  public:
    explicit CallScope(ParseContext& context) : ParseScope(context) { inForce().inIsLabel = false; }
};

/// The statements of a block, whose lines stand one level deeper.
class BlockScope {
  public:
    explicit BlockScope(ParseContext& context) : m_context(context) { mark(1); }
    ~BlockScope() { mark(-1); }
    BlockScope(const BlockScope&) = delete;
    BlockScope& operator=(const BlockScope&) = delete;

  private:
    void mark(int change) { m_context.tree().blocks.push_back({m_context.tokens().offset(), change}); }

    ParseContext& m_context;
};

}  // namespace script
