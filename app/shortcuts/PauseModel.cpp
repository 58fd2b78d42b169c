// SPDX-License-Identifier: MIT
#include "app/shortcuts/PauseModel.h"

void PauseModel::setChoice(const PauseChoice& choice) {
    if (m_choice == choice) return;
    m_choice = choice;
    emit changed();
}

void PauseModel::setKind(PauseRecording kind) {
    PauseChoice choice = m_choice;
    choice.kind = kind;
    setChoice(choice);
}

void PauseModel::setLimit(std::int32_t milliseconds) {
    PauseChoice choice = m_choice;
    choice.limit = milliseconds;
    setChoice(choice);
}
