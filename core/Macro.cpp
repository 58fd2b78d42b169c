// SPDX-License-Identifier: MIT
#include "core/Macro.h"

std::string Macro::script() const {
    if (m_script.empty()) m_script = buildScript();
    return m_script;
}

void Macro::insertAction(std::size_t index, const boost::shared_ptr<Action>& action) {
    m_actions.insert(m_actions.begin() + static_cast<std::ptrdiff_t>(index), action);
    m_fullText = {};
    m_renderedActions = 0;
}

std::string Macro::displayText() const {
    constexpr std::size_t edge = 10;
    const std::size_t count = m_actions.size();
    if (count <= 2 * edge) return rangeText(0, count);
    return rangeText(0, edge) + "..." + rangeText(count - edge, count);
}

const std::string& Macro::fullDisplayText() const {
    for (; m_renderedActions < m_actions.size(); ++m_renderedActions) {
        m_fullText.append(m_actions[m_renderedActions]->displayText());
    }
    return m_fullText.text();
}

std::string Macro::buildScript() const {
    std::string text = "tell application \"System Events\"\n";
    for (const auto& action : m_actions) {
        text += action->scriptLine();
        text += "delay 0.01\n";
    }
    text += "end tell\n";
    return text;
}

std::string Macro::rangeText(std::size_t first, std::size_t last) const {
    std::string text;
    for (std::size_t index = first; index < last; ++index) text += m_actions[index]->displayText();
    return text;
}
