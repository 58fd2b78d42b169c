// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>

#include "platform/script/code/Bytecode.h"

namespace script {

class Execution;

using Perform = void (*)(Execution& run, const Instruction& instruction);
using OperationTable = std::array<Perform, static_cast<std::size_t>(Operation::last) + 1>;

/// What is done for each operation.
const OperationTable& operationTable();

/// The rows of the table, by what they are about. Each function fills in its own.
void addValueOperations(OperationTable& table);
void addElementOperations(OperationTable& table);
void addControlOperations(OperationTable& table);
void addCallOperations(OperationTable& table);

}  // namespace script
