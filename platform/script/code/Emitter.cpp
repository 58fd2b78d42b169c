// SPDX-License-Identifier: MIT
#include "platform/script/code/Emitter.h"

#include <utility>

namespace script {

void Emitter::warn(const Node& node, std::string message) {
    if (m_code.warnings.size() >= maxWarnings) return;
    m_code.warnings.push_back({std::move(message), m_locator.at(node.offset)});
}

void Emitter::fail(int number, std::string message, std::uint32_t offset) {
    if (m_error) return;
    m_error = ScriptError{number, std::move(message), locate(m_source, offset)};
}

}  // namespace script
