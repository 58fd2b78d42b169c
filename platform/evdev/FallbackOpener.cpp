// SPDX-License-Identifier: MIT
#include "platform/evdev/FallbackOpener.h"

#include <optional>
#include <utility>

namespace evdev {

void FallbackOpener::open(const std::set<std::string>& held, Question question, Opened opened) {
    if (!m_isSecond) {
        std::optional<Result<std::vector<OpenedDevice>>> answer;
        m_first.open(held, question, [&answer](auto devices) { answer.emplace(std::move(devices)); });
        if (answer && *answer) return opened(std::move(*answer));
        m_first.close();
        m_isSecond = true;
    }
    m_second.open(held, question, std::move(opened));
}

void FallbackOpener::close() {
    m_isSecond ? m_second.close() : m_first.close();
    m_isSecond = false;
}

}  // namespace evdev
