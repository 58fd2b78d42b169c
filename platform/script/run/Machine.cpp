// SPDX-License-Identifier: MIT
#include "platform/script/run/Machine.h"

#include "platform/script/run/Execution.h"

namespace script {

RunResult Machine::run() {
    Execution execution(m_program, m_services);
    execution.onWarning(m_warningHandler);
    execution.onLog(m_logHandler);
    return execution.run();
}

}  // namespace script
