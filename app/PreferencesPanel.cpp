// SPDX-License-Identifier: MIT
#include "app/PreferencesPanel.h"

#include <QPushButton>
#include <QVBoxLayout>

PreferencesPanel::PreferencesPanel(PreferencesModel& /*model*/)
    : Panel(tr("Keyrill Preferences")), m_checkForUpdatesNowButton(new QPushButton(tr("Check &Now"))) {
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_checkForUpdatesNowButton, 0, Qt::AlignLeft);
}
