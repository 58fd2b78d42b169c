// SPDX-License-Identifier: MIT
#include "platform/script/code/Program.h"

#include <utility>

#include "platform/script/code/Bytecode.h"

namespace script {

Program::Program(Bytecode code) : m_code(std::make_unique<const Bytecode>(std::move(code))) {}
Program::~Program() = default;
Program::Program(Program&&) noexcept = default;
Program& Program::operator=(Program&&) noexcept = default;

const std::vector<ScriptWarning>& Program::warnings() const { return m_code->warnings; }
const std::vector<std::string>& Program::typedTexts() const { return m_code->typedTexts; }

}  // namespace script
