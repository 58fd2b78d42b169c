// SPDX-License-Identifier: MIT
#include "platform/script/ScriptRunner.h"

#include <variant>

#include "platform/script/Compiler.h"
#include "platform/script/Machine.h"
#include "platform/script/Scoped.h"

namespace script {

void ScriptRunner::run(const std::string& source) {
    if (m_running) return;
    const Scoped<bool> running(m_running, true);
    const std::variant<Program, ScriptError> compiled = compile(source);
    const auto* program = std::get_if<Program>(&compiled);
    if (program != nullptr) Machine(*program, {m_injector, m_desktop, *m_dialogs}).run();
}

}  // namespace script
