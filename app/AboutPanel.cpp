// SPDX-License-Identifier: MIT
#include "app/AboutPanel.h"

#include <QLabel>
#include <QVBoxLayout>

AboutPanel::AboutPanel() : Panel(tr("About Keyrill")) {
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("Keyrill is free software under the MIT licence.")));
}
