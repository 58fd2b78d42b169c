// SPDX-License-Identifier: MIT
#include "platform/script/run/ScriptRunner.h"

#include "platform/script/code/Compiler.h"
#include "platform/script/run/Run.h"
#include "platform/script/source/Scoped.h"

namespace script {

void ScriptRunner::run(const std::string& source) {
    if (m_running) return;
    const Scoped<bool> running(m_running, true);
    const auto program = compile(source);
    if (program) script::run(program.value(), {m_injector, m_desktop, *m_dialogs});
}

}  // namespace script
