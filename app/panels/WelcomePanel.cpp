// SPDX-License-Identifier: MIT
#include "app/panels/WelcomePanel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "app/shortcuts/CombinationText.h"
#include "app/shortcuts/PreferencesModel.h"
#include "app/shortcuts/ShortcutTitles.h"
#include "app/widgets/PanelText.h"

namespace {

/// Empty where pressing it does nothing.
QString workingCombination(const ShortcutModel& shortcut) {
    return shortcut.isRefused() ? QString() : combinationText(shortcut.keyCombo());
}

/// Keeps a label's text what the shortcut makes of it.
template <typename Text>
void follow(const ShortcutModel& shortcut, QLabel* label, Text text) {
    const auto show = [&shortcut, label, text] { label->setText(text(workingCombination(shortcut))); };
    QObject::connect(&shortcut, &ShortcutModel::changed, label, show);
    QObject::connect(&shortcut, &ShortcutModel::keyComboDidChange, label, show);
    show();
}

void addStep(QGridLayout& steps, QLabel* text) {
    const int row = steps.rowCount();
    auto* number = makeLine(WelcomePanel::tr("%1.").arg(row));
    steps.addWidget(number, row, 0, Qt::AlignTop | Qt::AlignTrailing);
    steps.addWidget(text, row, 1);
}

}  // namespace

WelcomePanel::WelcomePanel(const PreferencesModel& model) : Panel(tr("Welcome to Keyrill")) {
    auto* button = new QPushButton(tr("&Continue"));
    button->setDefault(true);
    connect(button, &QPushButton::clicked, this, &QWidget::close);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(makeGreeting());
    layout->addSpacing(layout->spacing());
    layout->addWidget(makeHeading(tr("Your first macro")));
    layout->addLayout(makeSteps(model));
    layout->addSpacing(layout->spacing());
    layout->addWidget(makeHeading(tr("The combinations")));
    layout->addLayout(makeCombinations(model));
    layout->addWidget(makeParagraph(tr("You can change them in the preferences, which come next.")));
    layout->addSpacing(layout->spacing());
    layout->addWidget(button, 0, Qt::AlignTrailing);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    button->setFocus();
}

QLayout* WelcomePanel::makeGreeting() {
    auto* words = new QVBoxLayout;
    words->addWidget(makeTitle(tr("Welcome to Keyrill")));
    words->addWidget(makeParagraph(tr(
        "Keyrill records the keys you press and presses them again for you, in any program, as often as you "
        "like.")));
    auto* layout = new QHBoxLayout;
    layout->addWidget(makeProgramIcon(), 0, Qt::AlignTop);
    layout->addSpacing(layout->spacing());
    layout->addLayout(words, 1);
    return layout;
}

QLayout* WelcomePanel::makeSteps(const PreferencesModel& model) {
    auto* steps = new QGridLayout;
    steps->setColumnStretch(1, 1);
    QLabel* record = makeParagraph({});
    follow(model.record, record, [](const QString& combination) {
        return combination.isEmpty()
                   ? tr("Choose Start Recording in Keyrill's menu. Then type.")
                   : tr("Press %1, or choose Start Recording in Keyrill's menu. Then type.").arg(combination);
    });
    addStep(*steps, record);
    QLabel* stop = makeParagraph({});
    follow(model.stop, stop, [](const QString& combination) {
        return combination.isEmpty() ? tr("Choose Stop Recording when you are done.")
                                     : tr("Press %1 when you are done.").arg(combination);
    });
    addStep(*steps, stop);
    QLabel* play = makeParagraph({});
    follow(model.play, play, [](const QString& combination) {
        return combination.isEmpty() ? tr("Click where the keys should go and choose Play.")
                                     : tr("Click where the keys should go and press %1.").arg(combination);
    });
    addStep(*steps, play);
    return steps;
}

QLayout* WelcomePanel::makeCombinations(const PreferencesModel& model) {
    auto* grid = new QGridLayout;
    grid->setColumnStretch(2, 1);
    for (std::size_t i = 0; i < model.shortcuts.size(); ++i)
        addCombination(*grid, model.shortcuts[i], shortcutTitles(i).command);
    return grid;
}

void WelcomePanel::addCombination(QGridLayout& grid, const ShortcutModel& shortcut, const QString& meaning) {
    const int row = grid.rowCount();
    QLabel* cap = makeKeyCap({});
    follow(shortcut, cap,
           [](const QString& combination) { return combination.isEmpty() ? tr("Not set") : combination; });
    grid.addWidget(cap, row, 0);
    grid.addWidget(makeLine(meaning), row, 1);
}
