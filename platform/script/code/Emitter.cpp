// SPDX-License-Identifier: MIT
#include "platform/script/code/Emitter.h"

#include <algorithm>
#include <utility>

#include "platform/Sentence.h"

namespace script {

void Emitter::warn(std::uint32_t offset, std::string message) {
    if (m_warnings.size() < maxWarnings) m_warnings.push_back({offset, std::move(message)});
}

void Emitter::finishWarnings() {
    std::stable_sort(m_warnings.begin(), m_warnings.end(),
                     [](const Warning& one, const Warning& other) { return one.offset < other.offset; });
    Locator locator(m_source);
    for (Warning& warning : m_warnings) {
        m_code.warnings.push_back({std::move(warning.message), locator.at(warning.offset)});
    }
}

void Emitter::fail(int number, Sentence message, std::uint32_t offset) {
    if (m_error) return;
    m_error = ScriptError{number, std::move(message), locate(m_source, offset)};
}

}  // namespace script
