// SPDX-License-Identifier: MIT
#include "app/shortcuts/ToggleModel.h"

void ToggleModel::setOn(bool on) {
    if (m_on == on) return;
    m_on = on;
    emit changed();
}
