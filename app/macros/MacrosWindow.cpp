// SPDX-License-Identifier: MIT
#include "app/macros/MacrosWindow.h"

#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <chrono>

#include "app/macros/MacroEditor.h"
#include "app/macros/MacroListModel.h"
#include "app/macros/MacroSettingsRow.h"
#include "app/widgets/MenuTitle.h"
#include "app/widgets/NoticeLine.h"
#include "app/widgets/PanelText.h"
#include "app/widgets/ScrollingMenu.h"
#include "app/widgets/WrappingRow.h"

namespace {

constexpr int secondsOfCount = 3;
constexpr QSize firstSize{960, 600};
/// There is a frame around a window, and something beside it.
constexpr double mostOfScreen = 0.9;
/// Of text: the steps are to be seen where the controls below them take several lines.
constexpr int leastLines = 24;
constexpr int listWidth = 240;

QPushButton* makeButton(const QString& title, const QString& hint) {
    auto* button = new QPushButton(title);
    button->setToolTip(hint);
    // Return in a field is the field's.
    button->setAutoDefault(false);
    return button;
}

/// The time stands where other lines of a menu have their shortcut.
QString lineOf(const MacrosWindow::Recording& recording) {
    return macroMenuTitle(recording.title) + u'\t' +
           inItsDirection(QLocale().toString(recording.recordedAt, QLocale::ShortFormat));
}

}  // namespace

MacrosWindow::MacrosWindow(const KeyboardLayout& layout)
    : Panel(tr("Macros")), m_model(new MacroListModel(this)), m_editor(new MacroEditor(layout)) {
    auto* sides = new QSplitter;
    sides->addWidget(makeList());
    sides->addWidget(makeEditor());
    sides->setStretchFactor(1, 1);
    sides->setChildrenCollapsible(false);
    sides->setSizes({listWidth, firstSize.width() - listWidth});
    m_controls = sides;
    auto* box = new QVBoxLayout(this);
    box->addWidget(sides, 1);
    box->addWidget(makeCount());
    setMinimumHeight(leastLines * fontMetrics().lineSpacing());
    resize(firstSize.boundedTo(screen()->availableSize() * mostOfScreen));
    makeShortcuts();
    connect(m_model, &MacroListModel::renameWanted, this, &MacrosWindow::renameWanted);
    connect(m_model, &QAbstractItemModel::modelReset, this, &MacrosWindow::restoreSelection);
    connect(m_editor, &MacroEditor::edited, this, [this] {
        if (m_told->isVisible() && !m_action->isVisible()) tell({});
        updateButtons();
        emit textEdited();
    });
    connect(m_editor, &MacroEditor::recordWanted, this, &MacrosWindow::keysWanted);
    m_countTimer.setInterval(std::chrono::seconds(1));
    connect(&m_countTimer, &QTimer::timeout, this, &MacrosWindow::count);
    updateButtons();
}

MacrosWindow::~MacrosWindow() {
    // A line that is being edited ends when the list goes, after this.
    m_model->disconnect(this);
}

QWidget* MacrosWindow::makeList() {
    m_search = new QLineEdit;
    m_search->setObjectName(QStringLiteral("search"));
    m_search->setPlaceholderText(tr("Search"));
    m_search->setAccessibleName(tr("Search macros"));
    m_search->setClearButtonEnabled(true);
    connect(m_search, &QLineEdit::textChanged, m_model, &MacroListModel::setQuery);
    connect(m_search, &QLineEdit::returnPressed, this, &MacrosWindow::goToFirst);

    m_list = new QListView;
    m_list->setModel(m_model);
    m_list->setUniformItemSizes(true);
    m_list->setEditTriggers(QAbstractItemView::EditKeyPressed);
    m_list->setAccessibleName(tr("Macros"));
    m_list->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &MacrosWindow::followSelection);

    m_empty = makeParagraph({});
    m_empty->setMinimumWidth(0);
    setReading(false);

    auto* recordButton = makeButton(tr("&Record New"), tr("Record a new macro"));
    connect(recordButton, &QPushButton::clicked, this, &MacrosWindow::recordWanted);

    auto* side = new QWidget;
    auto* box = new QVBoxLayout(side);
    // From right to left a splitter cuts off what is rightmost by a pixel.
    box->setContentsMargins(0, 0, isRightToLeft() ? 1 : 0, 0);
    box->addWidget(m_search);
    box->addWidget(m_empty);
    box->addWidget(m_list, 1);
    box->addWidget(recordButton);
    box->addWidget(makeKeepButton());
    return side;
}

QPushButton* MacrosWindow::makeKeepButton() {
    m_keep =
        makeButton(tr("Keep Recordin&g..."), tr("Keep a recording of the history as a macro, by a name"));
    m_keep->setEnabled(false);
    m_keepMenu = new ScrollingMenu({}, m_keep);
    m_keepMenu->setToolTipsVisible(true);
    m_keep->setMenu(m_keepMenu);
    m_forgetMenu = new ScrollingMenu(tr("&Forget"), m_keepMenu);
    connect(m_keepMenu, &QMenu::aboutToShow, this, &MacrosWindow::fillKeepMenu);
    return m_keep;
}

void MacrosWindow::setRecordings(std::function<std::vector<Recording>()> recordings) {
    m_recordings = std::move(recordings);
}

void MacrosWindow::setHasRecordings(bool hasRecordings) { m_keep->setEnabled(hasRecordings); }

void MacrosWindow::fillKeepMenu() {
    m_keepMenu->clear();
    const std::vector<Recording> recordings = m_recordings();
    for (const Recording& recording : recordings) {
        connect(m_keepMenu->addAction(lineOf(recording)), &QAction::triggered, this,
                [this, id = recording.macroId] { emit keepWanted(id); });
    }
    m_keepMenu->addSeparator();
    m_keepMenu->addMenu(m_forgetMenu);
    m_forgetMenu->clear();
    for (const Recording& recording : recordings) {
        connect(m_forgetMenu->addAction(lineOf(recording)), &QAction::triggered, this,
                [this, id = recording.macroId] { emit forgetWanted(id); });
    }
    m_forgetMenu->addSeparator();
    connect(m_forgetMenu->addAction(tr("Forget &All")), &QAction::triggered, this,
            &MacrosWindow::forgetAllWanted);
}

QWidget* MacrosWindow::makeEditor() {
    m_warning = new NoticeLine;
    m_told = makeLine({});
    m_told->setObjectName(QStringLiteral("told"));
    m_told->setWordWrap(true);
    m_told->hide();
    m_action = makeButton({}, {});
    m_action->hide();
    connect(m_action, &QPushButton::clicked, this, &MacrosWindow::undoWanted);
    auto* told = new QHBoxLayout;
    told->addWidget(m_warning, 1);
    told->addWidget(m_told, 1);
    told->addWidget(m_action);

    m_settings = new MacroSettingsRow;
    auto* side = new QWidget;
    auto* box = new QVBoxLayout(side);
    box->setContentsMargins(0, 0, 0, 0);
    box->addWidget(m_editor, 1);
    box->addWidget(m_settings);
    box->addLayout(told);
    box->addLayout(makeButtons());
    return side;
}

QLayout* MacrosWindow::makeButtons() {
    m_play = makeButton(tr("&Play"), tr("Play into the window that you were in before, after three seconds"));
    m_save = makeButton(
        tr("&Save"),
        tr("Save the macro (%1)").arg(QKeySequence(QKeySequence::Save).toString(QKeySequence::NativeText)));
    m_duplicate = makeButton(tr("D&uplicate"), tr("Make a copy of the macro"));
    m_rename = makeButton(tr("Re&name"), tr("Give the macro another name (F2)"));
    m_delete = makeButton(tr("&Delete"), tr("Put the macro into the trash (Delete)"));
    connect(m_play, &QPushButton::clicked, this, &MacrosWindow::playPressed);
    connect(m_save, &QPushButton::clicked, this, &MacrosWindow::saveWanted);
    connect(m_duplicate, &QPushButton::clicked, this, [this] { emit duplicateWanted(m_chosen); });
    connect(m_rename, &QPushButton::clicked, this, [this] { beginRename(m_chosen); });
    connect(m_delete, &QPushButton::clicked, this, [this] {
        // The button is none for a moment; who deletes one is among the others.
        m_list->setFocus();
        emit deleteWanted(m_chosen);
    });

    auto* file = new QHBoxLayout;
    for (QPushButton* button : {m_duplicate, m_rename, m_delete}) file->addWidget(button);
    auto* text = new QHBoxLayout;
    for (QPushButton* button : {m_save, m_play}) text->addWidget(button);
    auto* buttons = new WrappingRow;
    buttons->addLayout(file);
    buttons->addLayout(text);
    return buttons;
}

QWidget* MacrosWindow::makeCount() {
    m_countText = makeTitle({});
    auto* stop = makeButton(tr("Stop (Escape)"), tr("Do not play"));
    connect(stop, &QPushButton::clicked, this, &MacrosWindow::endCount);
    m_counter = new QWidget;
    auto* row = new QHBoxLayout(m_counter);
    row->addWidget(m_countText, 1);
    row->addWidget(stop);
    m_counter->hide();
    return m_counter;
}

void MacrosWindow::makeShortcuts() {
    const auto add = [this](const QKeySequence& keys, auto operation) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, operation);
    };
    add(QKeySequence::Find, [this] {
        m_search->setFocus(Qt::ShortcutFocusReason);
        m_search->selectAll();
    });
    add(QKeySequence::Save, [this] {
        if (m_save->isEnabled()) emit saveWanted();
    });
    auto* remove = new QAction(tr("Delete"), this);
    remove->setShortcut(QKeySequence::Delete);
    auto* rename = new QAction(tr("Rename"), this);
    auto* duplicate = new QAction(tr("Duplicate"), this);
    const std::vector<std::pair<QAction*, QPushButton*>> actions = {
        {duplicate, m_duplicate}, {rename, m_rename}, {remove, m_delete}};
    for (const auto& [action, button] : actions) {
        action->setShortcutContext(Qt::WidgetShortcut);
        m_list->addAction(action);
        connect(action, &QAction::triggered, button, &QPushButton::click);
    }
}

void MacrosWindow::setItems(std::vector<MacroListItem> items) {
    m_empty->setVisible(items.empty());
    m_model->setItems(std::move(items));
    updateButtons();
}

void MacrosWindow::setReading(bool isReading) {
    m_empty->setText(isReading ? tr("The macro folder is still being read.")
                               : tr("There is no macro yet. Record one, or put a macro file into the macro "
                                    "folder."));
}

void MacrosWindow::choose(const std::string& path) {
    if (path.empty()) {
        m_list->setCurrentIndex({});
        followSelection();
        return;
    }
    if (!m_model->indexOf(path).isValid()) m_search->clear();
    m_list->setCurrentIndex(m_model->indexOf(path));
}

void MacrosWindow::chooseNeighbour() {
    m_list->setCurrentIndex(m_model->neighbourOf(m_model->indexOf(m_chosen)));
    followSelection();
}

void MacrosWindow::beginRename(const std::string& path) {
    choose(path);
    const QModelIndex index = m_model->indexOf(path);
    if (!index.isValid()) return;
    m_list->setFocus();
    m_list->edit(index);
}

void MacrosWindow::goToFirst() {
    m_list->setCurrentIndex(m_model->firstMacro());
    m_list->setFocus();
}

void MacrosWindow::followSelection() {
    if (m_isRestoring) return;
    const MacroListItem* const item = m_model->itemAt(m_list->currentIndex());
    const std::string path = item == nullptr ? std::string() : item->path;
    if (path == m_chosen) return;
    m_chosen = path;
    m_hasText = false;
    setNotice({}, {}, false);
    emit chosenChanged(path);
    updateButtons();
}

/// A search that does not find the chosen macro leaves it open.
void MacrosWindow::restoreSelection() {
    m_isRestoring = true;
    m_list->setCurrentIndex(m_model->indexOf(m_chosen));
    m_isRestoring = false;
}

void MacrosWindow::showMacro(const std::string& saved, const std::string& text) {
    m_hasText = !m_chosen.empty();
    m_editor->showMacro(saved, text);
    updateButtons();
}

void MacrosWindow::showFault(const QString& why) {
    m_hasText = false;
    m_editor->showMacro({}, {});
    updateButtons();
    warn(why);
}

void MacrosWindow::updateButtons() {
    const bool isChosen = !m_chosen.empty();
    m_editor->setEnabled(m_hasText);
    m_settings->setEnabled(isChosen);
    m_play->setEnabled(m_hasText);
    m_save->setEnabled(m_hasText && m_editor->isChanged());
    m_duplicate->setEnabled(isChosen);
    m_rename->setEnabled(isChosen);
    m_delete->setEnabled(isChosen);
}

void MacrosWindow::setNotice(const QString& text, const QString& action, bool isWarning) {
    m_warning->setNotice(isWarning ? text : QString());
    m_told->setText(text);
    m_told->setVisible(!text.isEmpty() && !isWarning);
    m_action->setText(action);
    m_action->setVisible(!action.isEmpty());
    updateButtons();
}

void MacrosWindow::tell(const QString& text, const QString& action) { setNotice(text, action, false); }

void MacrosWindow::warn(const QString& text, const QString& action) { setNotice(text, action, true); }

void MacrosWindow::endWarning() {
    if (m_warning->isVisible()) tell({});
}

void MacrosWindow::endWarning(const QStringList& texts) {
    if (texts.contains(m_warning->notice())) endWarning();
}

void MacrosWindow::countDown() {
    m_count = secondsOfCount + 1;
    m_controls->setEnabled(false);
    m_counter->show();
    m_counter->findChild<QPushButton*>()->setFocus();
    m_countTimer.start();
    count();
}

void MacrosWindow::count() {
    --m_count;
    m_countText->setText(tr("Plays in %1 s...").arg(m_count));
    m_countText->setAccessibleName(m_countText->text());
    // To be seen in the panel's list of windows too.
    setWindowTitle(m_countText->text());
    if (m_count > 0) return;
    endCount();
    emit playWanted();
}

void MacrosWindow::endCount() {
    m_count = 0;
    m_countTimer.stop();
    m_counter->hide();
    setWindowTitle(tr("Macros"));
    m_controls->setEnabled(true);
    m_play->setFocus();
}

/// Escape closes no window in which there is something to lose; who looks for a macro begins anew with it.
void MacrosWindow::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Undo)) {
        emit undoWanted();
        return;
    }
    // The field has no use for it.
    if (event->key() == Qt::Key_Down && focusWidget() == m_search) return goToFirst();
    if (!event->matches(QKeySequence::Cancel)) return Panel::keyPressEvent(event);
    if (isCounting()) {
        endCount();
    } else {
        m_search->clear();
    }
}
