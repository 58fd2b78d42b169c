// SPDX-License-Identifier: MIT
#include "app/panels/RecordHerePanel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "app/panels/KeyField.h"
#include "app/widgets/PanelText.h"

RecordHerePanel::RecordHerePanel()
    : Panel(tr("Record Here")),
      m_cause(makeParagraph({})),
      m_hint(makeParagraph({})),
      m_end(makeParagraph({})),
      m_field(new KeyField),
      m_helpButton(new QPushButton(tr("How to Record Everywhere"))) {
    m_field->setPlaceholderText(tr("Type here"));
    m_field->setAccessibleName(tr("Keys typed here are recorded"));
    auto* stopButton = new QPushButton(tr("Stop Recording"));
    connect(stopButton, &QPushButton::clicked, this, &QWidget::close);
    // A click on it stops anyway; else the field is to keep the keys.
    stopButton->setFocusPolicy(Qt::NoFocus);
    m_helpButton->setFocusPolicy(Qt::NoFocus);
    connect(m_field, &KeyField::keyCame, this, &RecordHerePanel::keyCame);
    connect(m_field, &KeyField::left, this, &RecordHerePanel::left);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_helpButton);
    buttons->addStretch();
    buttons->addWidget(stopButton);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(makeHeading(tr("What you type in this window is recorded")));
    layout->addWidget(
        makeParagraph(tr("What you type in other programs is not. The macro can be played in all of them.")));
    layout->addWidget(m_field);
    layout->addWidget(m_end);
    layout->addSpacing(layout->spacing());
    layout->addWidget(makeHeading(tr("Why not everywhere?")));
    layout->addWidget(m_cause);
    layout->addWidget(m_hint);
    layout->addSpacing(layout->spacing());
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

// The field loses the keyboard when it goes, after this.
RecordHerePanel::~RecordHerePanel() { m_field->disconnect(this); }

void RecordHerePanel::setCause(const Error& cause) {
    m_cause->setText(QString::fromStdString(cause.message));
    m_hint->setText(QString::fromStdString(cause.hint));
    m_hint->setVisible(!cause.hint.empty());
}

void RecordHerePanel::setStopCombination(const QString& combination) {
    setEnd(combination.isEmpty() ? tr("Press Stop Recording or close the window when you are done.")
                                 : tr("Press %1 when you are done, or close the window.").arg(combination));
}

void RecordHerePanel::setStopTrigger(const QString& words) {
    setEnd(
        words.isEmpty()
            ? tr("Use the combination of the desktop's settings when you are done, or close the window.")
            : tr("Use the combination of the desktop's settings when you are done, or close the window: %1")
                  .arg(words));
}

void RecordHerePanel::setEnd(const QString& text) {
    m_end->setText(text);
    m_field->setAccessibleDescription(text);
}

void RecordHerePanel::setMacroString(const QString& text) { m_field->setText(text); }

void RecordHerePanel::takeKeys() { m_field->setFocus(); }
