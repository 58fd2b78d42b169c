// SPDX-License-Identifier: MIT
#include "app/panels/PreferencesPanel.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/panels/PauseRow.h"
#include "app/shortcuts/PreferencesModel.h"
#include "app/shortcuts/SRRecorderControl.h"
#include "app/shortcuts/ShortcutTitles.h"
#include "app/widgets/NoticeLine.h"
#include "app/widgets/PanelText.h"

namespace {

/// Comes last and has the button beside it.
constexpr std::size_t updateToggle = toggleIndex("checkForUpdatesOnLaunch");
constexpr std::size_t consentToggle = toggleIndex("writeHotKeys");

QCheckBox* makeCheckBox(PreferencesModel& preferences, std::size_t index) {
    ToggleModel& model = preferences.toggles.at(index);
    auto* box = new QCheckBox(QCoreApplication::translate(togglesContext, toggleRows.at(index).title));
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
    for (std::size_t i = 0; i < model.shortcuts.size(); ++i)
        addShortcut(*form, model.shortcuts[i], shortcutTitles(i));
    return form;
}

void PreferencesPanel::addShortcut(QFormLayout& form, ShortcutModel& shortcut, const ShortcutTitles& titles) {
    auto* field = new SRRecorderControl(shortcut, titles.command, this);
    form.addRow(titles.label, field);
    auto* notice = new NoticeLine(this);
    // It takes the width that is there; the panel grows downwards only.
    notice->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
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
    layout->addWidget(new PauseRow(model.pauses));
    for (std::size_t i = 0; i < model.toggles.size(); ++i) {
        if (i == updateToggle) continue;
        auto* box = makeCheckBox(model, i);
        layout->addWidget(box);
        if (i == consentToggle) box->setVisible(model.offersConsent);
    }
    layout->addLayout(makeUpdateOption(model));
    return layout;
}

QLayout* PreferencesPanel::makeUpdateOption(PreferencesModel& model) {
    auto* updates = new QHBoxLayout;
    auto* box = makeCheckBox(model, updateToggle);
    updates->addWidget(box);
    updates->addStretch();
    updates->addWidget(m_checkForUpdatesNowButton);
    box->setVisible(model.offersUpdateCheck);
    m_checkForUpdatesNowButton->setVisible(model.offersUpdateCheck);
    return updates;
}
