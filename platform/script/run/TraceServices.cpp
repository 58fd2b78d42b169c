// SPDX-License-Identifier: MIT
#include "platform/script/run/TraceServices.h"

#include <ostream>

#include "platform/script/source/Word.h"

namespace script {
namespace {

std::string escaped(char c) {
    constexpr std::string_view digits = "0123456789abcdef";
    const auto byte = static_cast<unsigned char>(c);
    switch (c) {
        case '"':
        case '\\':
            return {'\\', c};
        case '\n':
            return "\\n";
        case '\r':
            return "\\r";
        case '\t':
            return "\\t";
        default:
            if (byte >= 0x20) return {c};
            return std::string("\\u00") + digits[byte >> 4U] + digits[byte & 0xFU];
    }
}

}  // namespace

std::string jsonText(std::string_view text) {
    std::string out = "\"";
    for (const char c : text) out += escaped(c);
    return out + "\"";
}

Result<void> TraceDesktop::beep(int count) {
    m_out << "[\"beep\"," << count << "]\n";
    return {};
}

Result<void> TraceDesktop::setClipboard(std::string_view text) {
    m_out << "[\"clipboard\"," << jsonText(text) << "]\n";
    return SilentDesktop::setClipboard(text);
}

bool TraceDesktop::isInFront(std::string_view name) { return equalIgnoringCase(name, m_front); }

Result<ScriptAnswer> TraceDialogs::ask(const ScriptDialog& dialog) {
    std::string buttons;
    for (const std::string& button : dialog.buttons)
        buttons += (buttons.empty() ? "" : ",") + jsonText(button);
    if (!dialog.choices.empty()) return choose(dialog);
    const char* kind = dialog.kind == ScriptDialog::Kind::dialog ? "dialog" : "alert";
    m_out << "[\"" << kind << "\"," << jsonText(dialog.text) << ",[" << buttons << "]]\n";
    return ScriptAnswer{
        dialog.defaultButton.value_or(dialog.buttons.size() - 1), dialog.defaultAnswer.value_or(""), {}};
}

/// What is chosen already, or the first one.
ScriptAnswer TraceDialogs::choose(const ScriptDialog& dialog) {
    std::string choices;
    for (const std::string& choice : dialog.choices)
        choices += (choices.empty() ? "" : ",") + jsonText(choice);
    m_out << "[\"list\"," << jsonText(dialog.text) << ",[" << choices << "]]\n";
    ScriptAnswer answer{dialog.defaultButton, "", dialog.defaultChoices};
    if (answer.chosen.empty() && !dialog.allowsNone) answer.chosen.push_back(0);
    return answer;
}

Result<void> TraceDialogs::notify(const ScriptNotification& notification) {
    m_out << "[\"notification\"," << jsonText(notification.text) << "]\n";
    return {};
}

}  // namespace script
