// SPDX-License-Identifier: MIT
#include "app/WelcomePanel.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

WelcomePanel::WelcomePanel(const PreferencesModel& /*model*/) : Panel(tr("Welcome to Keyrill")) {
    auto* text = new QLabel(tr("Keyrill records what you type and types it again."));
    auto* button = new QPushButton(tr("&Continue"));
    button->setDefault(true);
    connect(button, &QPushButton::clicked, this, &QWidget::close);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(button, 0, Qt::AlignRight);
}
