// SPDX-License-Identifier: MIT
#pragma once

#include "platform/script/syntax/ApplicationParser.h"
#include "platform/script/syntax/BlockParser.h"
#include "platform/script/syntax/CallParser.h"
#include "platform/script/syntax/CommandParser.h"
#include "platform/script/syntax/ElementParser.h"
#include "platform/script/syntax/ExpressionParser.h"
#include "platform/script/syntax/HandlerParser.h"
#include "platform/script/syntax/ListParser.h"
#include "platform/script/syntax/LiteralParser.h"
#include "platform/script/syntax/NameParser.h"
#include "platform/script/syntax/PrimaryParser.h"
#include "platform/script/syntax/ProcessParser.h"
#include "platform/script/syntax/StatementParser.h"

namespace script {

/// The parsers of all parts of the grammar, which call one another. What a part may hold stands above its
/// parser.
struct Grammar {
    explicit Grammar(ParseContext& context)
        : literals(context, *this),
          names(context, *this),
          applications(context, *this),
          processes(context, *this),
          lists(context, *this),
          elements(context, *this),
          calls(context, *this),
          commands(context, *this),
          primaries(context, *this),
          expressions(context, *this),
          blocks(context, *this),
          statements(context, *this),
          handlers(context, *this) {}

    LiteralParser literals;
    NameParser names;
    ApplicationParser applications;
    ProcessParser processes;
    ListParser lists;
    ElementParser elements;
    CallParser calls;
    CommandParser commands;
    PrimaryParser primaries;
    ExpressionParser expressions;
    BlockParser blocks;
    StatementParser statements;
    HandlerParser handlers;
};

}  // namespace script
