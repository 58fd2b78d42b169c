// SPDX-License-Identifier: MIT
#include "platform/evdev/FallbackOpener.h"

#include <optional>
#include <utility>

namespace evdev {

void FallbackOpener::open(const std::set<std::string>& held, Question question, Opened opened) {
    if (m_chosen != nullptr) return m_chosen->open(held, question, std::move(opened));
    std::optional<Result<std::vector<OpenedDevice>>> answer;
    m_first.open(held, question, [&answer](auto devices) { answer.emplace(std::move(devices)); });
    if (answer && *answer && !answer->value().empty()) {
        m_chosen = &m_first;
        return opened(std::move(*answer));
    }
    m_first.close();
    m_chosen = &m_second;
    m_second.open(held, question, std::move(opened));
}

void FallbackOpener::whenLost(std::function<void(const Error& why)> lost) {
    m_first.whenLost(lost);
    m_second.whenLost(std::move(lost));
}

void FallbackOpener::close() {
    if (m_chosen != nullptr) std::exchange(m_chosen, nullptr)->close();
}

}  // namespace evdev
