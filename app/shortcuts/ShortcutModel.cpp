// SPDX-License-Identifier: MIT
#include "app/shortcuts/ShortcutModel.h"

void ShortcutModel::setKeyCombo(KeyCombo keyCombo) {
    if (m_keyCombo == keyCombo) return;
    m_keyCombo = keyCombo;
    emit changed();
}

void ShortcutModel::record(KeyCombo keyCombo) {
    m_keyCombo = keyCombo;
    emit keyComboDidChange();
}

void ShortcutModel::setNotice(const QString& notice) {
    if (m_notice == notice) return;
    m_notice = notice;
    emit changed();
}

void ShortcutModel::setRefused(bool refused) {
    if (m_isRefused == refused) return;
    m_isRefused = refused;
    emit changed();
}
