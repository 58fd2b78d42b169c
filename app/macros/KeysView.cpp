// SPDX-License-Identifier: MIT
#include "app/macros/KeysView.h"

#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QLocale>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "app/widgets/NoticeLine.h"
#include "app/widgets/PanelText.h"
#include "app/widgets/WrappingRow.h"
#include "library/steps/TypingKeys.h"
#include "platform/ErrorText.h"

namespace {

constexpr double newPause = 0.5;

QBoxLayout* addGroup(WrappingRow& row) {
    auto* group = new QHBoxLayout;
    group->setSpacing(0);
    row.addLayout(group);
    return group;
}

void addButton(QBoxLayout& group, QAction* action) {
    auto* button = new QToolButton;
    button->setDefaultAction(action);
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    button->setAutoRaise(true);
    group.addWidget(button);
}

}  // namespace

KeysView::KeysView(const KeyboardLayout& layout, QWidget* parent)
    : QWidget(parent),
      m_layout(layout),
      m_model(layout),
      m_list(new QListView),
      m_explanation(makeParagraph({})),
      m_notice(new NoticeLine) {
    m_explanation->setMinimumWidth(0);
    m_explanation->hide();
    m_list->setModel(&m_model);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setUniformItemSizes(true);
    m_list->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    m_list->setAccessibleName(tr("Keys of the macro"));

    auto* box = new QVBoxLayout(this);
    box->addLayout(makeActions());
    box->addWidget(m_explanation);
    box->addWidget(m_list, 1);
    box->addWidget(m_notice);
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this, &KeysView::updateActions);
    connect(&m_model, &StepsModel::editWanted, this, [this](const steps::Splice& splice) {
        m_notice->setNotice({});
        emit editWanted(splice);
        // The field that was typed into has gone with the old steps.
        m_list->setFocus();
    });
    connect(&m_model, &StepsModel::refused, this, &KeysView::refuse);
    m_list->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_list->installEventFilter(this);
    setFocusProxy(m_list);
    updateActions();
}

QAction* KeysView::addAction(QBoxLayout& group, const QString& title, const QString& hint,
                             const QKeySequence& keys, void (KeysView::*operation)()) {
    auto* action = new QAction(title, this);
    action->setToolTip(keys.isEmpty() ? hint
                                      : tr("%1 (%2)", "what a button does, and its keys")
                                            .arg(hint, keys.toString(QKeySequence::NativeText)));
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, [this, operation] { (this->*operation)(); });
    m_list->addAction(action);
    addButton(group, action);
    return action;
}

QLayout* KeysView::makeActions() {
    auto* row = new WrappingRow;
    QBoxLayout& newSteps = *addGroup(*row);
    m_record = new QAction(tr("Record Keys"), this);
    m_record->setToolTip(tr("Record keys behind the selected step"));
    connect(m_record, &QAction::triggered, this, &KeysView::recordWanted);
    addButton(newSteps, m_record);
    m_pause = addAction(newSteps, tr("Add Pause"), tr("A pause behind the selected step"), {},
                        &KeysView::insertPause);
    QBoxLayout& edits = *addGroup(*row);
    m_change = addAction(edits, tr("Change"), tr("Change the text, the pause or how often a key is pressed"),
                         {}, &KeysView::change);
    m_duplicate = addAction(edits, tr("Repeat"), tr("The selected steps once more"),
                            QKeySequence(Qt::CTRL | Qt::Key_D), &KeysView::duplicate);
    m_moveUp =
        addAction(edits, tr("Up"), tr("Move up"), QKeySequence(Qt::ALT | Qt::Key_Up), &KeysView::moveUp);
    m_moveDown = addAction(edits, tr("Down"), tr("Move down"), QKeySequence(Qt::ALT | Qt::Key_Down),
                           &KeysView::moveDown);
    m_remove = addAction(edits, tr("Remove"), tr("Remove the selected steps"), QKeySequence::Delete,
                         &KeysView::remove);
    QBoxLayout& conversions = *addGroup(*row);
    m_toText = addAction(conversions, tr("Convert to Text"), tr("Type the same under every keyboard layout"),
                         {}, &KeysView::convertToText);
    m_toKeys = addAction(conversions, tr("Convert to Keys"),
                         tr("Press the keys of the present keyboard layout"), {}, &KeysView::convertToKeys);
    return row;
}

bool KeysView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_list && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const QKeySequence keys(key->keyCombination());
        // The list would take the keys of a step that can move no further for its own, and select another.
        if (keys == m_moveUp->shortcut() || keys == m_moveDown->shortcut()) return true;
    }
    // The list itself makes the first step the current one and does not select it.
    if (watched == m_list && event->type() == QEvent::FocusIn && !m_list->selectionModel()->hasSelection() &&
        m_model.rowCount() > 0)
        m_list->setCurrentIndex(m_model.index(std::max(m_list->currentIndex().row(), 0)));
    return QWidget::eventFilter(watched, event);
}

void KeysView::showScript(const std::string& script) {
    const int row = m_list->currentIndex().row();
    m_model.showScript(script);
    m_explanation->setText(
        tr("This is a script of its own: line %1 cannot be changed here. What it would press is "
           "shown; change it under Script.")
            .arg(QLocale().toString(static_cast<qulonglong>(m_model.otherLine()))));
    m_explanation->setVisible(!m_model.isRecording() && m_model.rowCount() > 0);
    m_notice->setNotice(m_model.notice());
    const int last = m_model.rowCount() - 1;
    if (last >= 0 && row >= 0) m_list->setCurrentIndex(m_model.index(std::min(row, last)));
    updateActions();
}

void KeysView::updateActions() {
    const bool isRecording = m_model.isRecording();
    const Range range = selected();
    const bool isSelected = isRecording && range.count > 0;
    for (QAction* action : {m_record, m_pause}) action->setEnabled(isRecording);
    for (QAction* action : {m_remove, m_duplicate}) action->setEnabled(isSelected);
    m_change->setEnabled(isSelected && m_list->selectionModel()->hasSelection());
    m_moveUp->setEnabled(isSelected && range.firstRow > 0);
    m_moveDown->setEnabled(isSelected && range.lastRow + 1 < m_model.rowCount());
    const auto isOfKind = [&](steps::StepKind kind) {
        const auto& all = m_model.steps();
        return isSelected && std::any_of(all.begin() + range.firstRow, all.begin() + range.lastRow + 1,
                                         [kind](const steps::Step& step) { return step.kind == kind; });
    };
    m_toText->setEnabled(isOfKind(steps::StepKind::typing));
    m_toKeys->setEnabled(isOfKind(steps::StepKind::text));
}

KeysView::Range KeysView::selected() const {
    Range range;
    const QItemSelection selection = m_list->selectionModel()->selection();
    if (selection.isEmpty() || m_model.steps().empty()) return range;
    range.firstRow = m_model.rowCount();
    for (const QItemSelectionRange& part : selection) {
        range.firstRow = std::min(range.firstRow, part.top());
        range.lastRow = std::max(range.lastRow, part.bottom());
    }
    const steps::Step& first = m_model.steps().at(static_cast<std::size_t>(range.firstRow));
    const steps::Step& last = m_model.steps().at(static_cast<std::size_t>(range.lastRow));
    range.first = first.first;
    range.count = last.first + last.count - first.first;
    return range;
}

void KeysView::select(std::size_t firstLine, std::size_t count) {
    QItemSelection selection;
    int current = -1;
    for (int row = 0; row < m_model.rowCount(); ++row) {
        const steps::Step& step = m_model.steps()[static_cast<std::size_t>(row)];
        if (step.first >= firstLine + std::max<std::size_t>(count, 1)) break;
        if (step.first + step.count <= firstLine) continue;
        selection.select(m_model.index(row), m_model.index(row));
        current = row;
    }
    if (current < 0) return;
    m_list->setCurrentIndex(m_model.index(current));
    m_list->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

void KeysView::edit(const steps::Splice& splice, std::size_t firstLine, std::size_t count) {
    m_notice->setNotice({});
    emit editWanted(splice);
    select(firstLine, count);
}

void KeysView::replace(const steps::Splice& splice, std::size_t firstLine, std::size_t count) {
    const std::size_t others = m_model.recording().lines().size() - count;
    edit(splice, firstLine, 0);
    if (m_model.isRecording()) select(firstLine, m_model.recording().lines().size() - others);
}

void KeysView::refuse(const Error& why) { m_notice->setNotice(QString::fromStdString(inOneParagraph(why))); }

void KeysView::remove() {
    const Range range = selected();
    if (range.count > 0) edit(m_model.recording().erased(range.first, range.count), range.first, 1);
}

void KeysView::moveUp() {
    const Range range = selected();
    if (range.count == 0 || range.firstRow == 0) return;
    const std::size_t before = m_model.steps().at(static_cast<std::size_t>(range.firstRow) - 1).first;
    edit(m_model.recording().moved(range.first, range.count, before), before, range.count);
}

void KeysView::moveDown() {
    const Range range = selected();
    if (range.count == 0 || range.lastRow + 1 >= m_model.rowCount()) return;
    const steps::Step& passed = m_model.steps().at(static_cast<std::size_t>(range.lastRow) + 1);
    edit(m_model.recording().moved(range.first, range.count, passed.first + passed.count),
         range.first + passed.count, range.count);
}

void KeysView::duplicate() {
    const Range range = selected();
    if (range.count == 0) return;
    edit(m_model.recording().repeated(range.first, range.count, 2), range.first + range.count, range.count);
}

void KeysView::change() {
    if (m_list->currentIndex().isValid()) m_list->edit(m_list->currentIndex());
}

void KeysView::insertPause() {
    insertLines(steps::pauseLines(newPause));
    // To be changed by the keyboard next.
    m_list->setFocus();
}

void KeysView::insertLines(const std::string& lines) {
    if (!m_model.isRecording()) return;
    const Range range = selected();
    const std::size_t at = range.count > 0 ? range.first + range.count : m_model.recording().lines().size();
    replace(m_model.recording().replaced(at, 0, lines), at, 0);
}

void KeysView::convertToText() {
    const Range range = selected();
    if (range.count == 0) return;
    const auto splice = steps::convertedToText(m_model.recording(), range.first, range.count, m_layout);
    if (splice) replace(*splice, range.first, range.count);
}

void KeysView::convertToKeys() {
    const Range range = selected();
    if (range.count == 0) return;
    const auto splice = steps::convertedToKeys(m_model.recording(), range.first, range.count, m_layout);
    if (!splice) return refuse(splice.error());
    if (splice.value()) replace(*splice.value(), range.first, range.count);
}
