// SPDX-License-Identifier: MIT
#include "app/panels/PreferencesPanel.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/shortcuts/PreferencesModel.h"
#include "app/shortcuts/SRRecorderControl.h"
#include "app/widgets/NoticeLine.h"
#include "app/widgets/PanelText.h"

namespace {

QCheckBox* makeCheckBox(ToggleModel& model, const QString& text) {
    auto* box = new QCheckBox(text);
    box->setChecked(model.isOn());
    QObject::connect(box, &QCheckBox::toggled, &model, &ToggleModel::setOn);
    QObject::connect(&model, &ToggleModel::changed, box, [box, &model] { box->setChecked(model.isOn()); });
    return box;
}

}  // namespace

PreferencesPanel::PreferencesPanel(PreferencesModel& model)
    : Panel(tr("Keyrill Preferences")), m_checkForUpdatesNowButton(new QPushButton(tr("Check &Now"), this)) {
    auto* closeButton = new QPushButton(tr("&Close"));
    closeButton->setDefault(true);
    connect(closeButton, &QPushButton::clicked, this, &QWidget::close);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(makeHeading(tr("Shortcuts")));
    layout->addWidget(makeParagraph(
        tr("These combinations work in every program. Click a field and press the combination you want.")));
    layout->addLayout(makeShortcuts(model));
    layout->addSpacing(layout->spacing());
    layout->addWidget(makeHeading(tr("Options")));
    layout->addLayout(makeOptions(model));
    layout->addSpacing(layout->spacing());
    layout->addWidget(closeButton, 0, Qt::AlignTrailing);
    // The panel grows and shrinks with its notices.
    layout->setSizeConstraint(QLayout::SetFixedSize);
    setTabOrder(m_checkForUpdatesNowButton, closeButton);
    findChild<SRRecorderControl*>()->setFocus();
}

QLayout* PreferencesPanel::makeShortcuts(PreferencesModel& model) {
    auto* form = new QFormLayout;
    form->setLabelAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    addShortcut(*form, model.record, tr("Start &recording:"), tr("Start recording"));
    addShortcut(*form, model.stop, tr("&Stop recording:"), tr("Stop recording"));
    addShortcut(*form, model.play, tr("&Play:"), tr("Play"));
    addShortcut(*form, model.multiplePlay, tr("Play &multiple times:"), tr("Play multiple times"));
    return form;
}

void PreferencesPanel::addShortcut(QFormLayout& form, ShortcutModel& shortcut, const QString& label,
                                   const QString& name) {
    auto* field = new SRRecorderControl(shortcut, name, this);
    form.addRow(label, field);
    auto* notice = new NoticeLine(this);
    const auto showNotice = [&form, notice, &shortcut] {
        notice->setNotice(shortcut.notice());
        // A hidden widget's row would still take its spacing.
        form.setRowVisible(notice, !shortcut.notice().isEmpty());
    };
    form.addRow(QString(), notice);
    connect(&shortcut, &ShortcutModel::changed, notice, showNotice);
    showNotice();
}

QLayout* PreferencesPanel::makeOptions(PreferencesModel& model) {
    auto* layout = new QVBoxLayout;
    layout->addWidget(makeCheckBox(model.launchOnLogin, tr("Start Keyrill when I log &in")));
    auto* updates = new QHBoxLayout;
    auto* box = makeCheckBox(model.checkForUpdatesOnLaunch, tr("Check for &updates when Keyrill starts"));
    updates->addWidget(box);
    updates->addStretch();
    updates->addWidget(m_checkForUpdatesNowButton);
    box->setVisible(model.offersUpdateCheck);
    m_checkForUpdatesNowButton->setVisible(model.offersUpdateCheck);
    layout->addLayout(updates);
    return layout;
}
