// SPDX-License-Identifier: MIT
#include "platform/script/commands/DialogReader.h"

#include <algorithm>
#include <utility>

#include "platform/Sentence.h"
#include "platform/script/commands/Playing.h"
#include "platform/script/source/ScriptError.h"
#include "platform/script/values/Coercion.h"
#include "platform/script/values/SourceForm.h"

namespace script {

void DialogReader::fail(Failure failure) {
    if (!m_failure) m_failure = std::move(failure);
}

std::string DialogReader::text(const Value* given) {
    if (given == nullptr) return "";
    Fallible<std::string> text = textOf(*given);
    if (!text) {
        fail(std::move(text).error());
        return "";
    }
    return std::move(text).value();
}

bool DialogReader::truth(const Value* given) {
    if (given == nullptr) return false;
    const std::optional<bool> truth = conditionOf(*given);
    if (!truth) fail(cannotMake(*given, "boolean"));
    return truth.value_or(false);
}

double DialogReader::number(const Value* given) {
    if (given == nullptr) return 0;
    const std::optional<double> number = numberOf(*given);
    if (!number) fail(cannotMake(*given, "number"));
    return std::max(0.0, number.value_or(0));
}

void DialogReader::readButtons(unsigned parameter, std::vector<std::string> usual) {
    const Value* given = m_arguments.parameter(parameter);
    if (given == nullptr) {
        m_dialog.buttons = std::move(usual);
        return;
    }
    constexpr std::size_t most = 3;
    for (const Value& item : itemsOf(*given)) m_dialog.buttons.push_back(text(&item));
    if (m_dialog.buttons.empty() || m_dialog.buttons.size() > most) {
        fail(cannotMake(*given, sentence("ScriptErrors", "list of button names")));
    }
}

void DialogReader::readButton(unsigned parameter, std::optional<std::size_t>& target) {
    const Value* given = m_arguments.parameter(parameter);
    if (given == nullptr || m_failure) return;
    const auto& buttons = m_dialog.buttons;
    const std::string_view* name = given->text();
    std::size_t place = buttons.size();
    if (name != nullptr) {
        place = static_cast<std::size_t>(std::find(buttons.begin(), buttons.end(), *name) - buttons.begin());
    } else if (const auto number = integerOf(*given); number && *number > 0) {
        place = static_cast<std::size_t>(*number - 1);
    }
    if (place >= buttons.size()) return fail(cannotGet("button " + quotedForm(*given)));
    target = place;
}

void DialogReader::readChoices(const Value& choices, const Value* chosen) {
    for (const Value& item : itemsOf(choices)) m_dialog.choices.push_back(text(&item));
    if (m_dialog.choices.empty())
        return fail(cannotMake(choices, sentence("ScriptErrors", "list of choices")));
    if (chosen == nullptr) return;
    const auto& all = m_dialog.choices;
    for (const Value& item : itemsOf(*chosen)) {
        const auto place = std::find(all.begin(), all.end(), text(&item)) - all.begin();
        if (static_cast<std::size_t>(place) == all.size()) return fail(cannotGet("item " + quotedForm(item)));
        m_dialog.defaultChoices.push_back(static_cast<std::size_t>(place));
        if (!m_dialog.allowsSeveral) return;
    }
    std::sort(m_dialog.defaultChoices.begin(), m_dialog.defaultChoices.end());
}

Fallible<ScriptAnswer> DialogReader::answer(CommandStage& stage) {
    if (m_failure) return *std::move(m_failure);
    if (auto going = stage.goOn(); !going) return std::move(going).error();
    Result<ScriptAnswer> answer = stage.dialogs().ask(m_dialog);
    if (auto going = stage.goOn(); !going) return std::move(going).error();
    if (!answer) return desktopFailure(answer.error());
    return std::move(answer).value();
}

Fallible<Value> DialogReader::choose(CommandStage& stage, Value (*answered)(const ScriptDialog& dialog,
                                                                            const ScriptAnswer& answer)) {
    Fallible<ScriptAnswer> given = answer(stage);
    if (!given) return std::move(given).error();
    return answered(m_dialog, given.value());
}

Fallible<Value> DialogReader::ask(CommandStage& stage,
                                  Value (*answered)(const ScriptDialog& dialog, const ScriptAnswer& answer)) {
    Fallible<ScriptAnswer> given = answer(stage);
    if (!given) return std::move(given).error();
    if (given.value().button && given.value().button == m_dialog.cancelButton) {
        return standardFailure(errornumber::userCancelled);
    }
    return answered(m_dialog, given.value());
}

}  // namespace script
