// SPDX-License-Identifier: MIT
#include "app/dialogs/ScriptDialogWindow.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>
#include <chrono>
#include <limits>

#include "app/icons/ProgramIcon.h"
#include "app/widgets/PanelText.h"

namespace {

/// As everywhere during a playback.
constexpr std::chrono::milliseconds escapeHold{300};
/// More than anybody reads before he presses a button.
constexpr qsizetype longestText = 20000;
/// Characters of a word that is longer than a line; behind so many it may be broken.
constexpr int longestWord = 50;
/// In widths of a lower case letter.
constexpr int widestButton = 40;
/// Of the screen's height.
constexpr double tallestWords = 0.6;
constexpr int longestAnswer = 1 << 24;

/// Cut, and with an invisible place for a break in words that no line can hold.
QString shown(const std::string& text) {
    QString out;
    int sinceBreak = 0;
    const QString all = QString::fromStdString(text);
    for (const QChar character : all.left(longestText)) {
        sinceBreak = character.isSpace() ? 0 : sinceBreak + 1;
        if (sinceBreak > longestWord && !character.isLowSurrogate() && !character.isMark()) {
            out += QChar(0x200B);
            sinceBreak = 1;
        }
        out += character;
    }
    return all.size() > longestText ? out + QChar(0x2026) : out;
}

struct Sign {
    QStyle::StandardPixmap picture;
    QString name;
};

std::optional<Sign> signOf(const ScriptDialog& dialog) {
    switch (dialog.icon) {
        case ScriptDialog::Icon::stop:
            //: the name of a picture: a stop sign
            return Sign{QStyle::SP_MessageBoxCritical, ScriptDialogWindow::tr("Stop")};
        case ScriptDialog::Icon::caution:
            return Sign{QStyle::SP_MessageBoxWarning, ScriptDialogWindow::tr("Caution")};
        case ScriptDialog::Icon::note:
            return Sign{QStyle::SP_MessageBoxInformation, ScriptDialogWindow::tr("Note")};
        case ScriptDialog::Icon::none:
            break;
    }
    if (dialog.kind == ScriptDialog::Kind::dialog) return std::nullopt;
    return Sign{QStyle::SP_MessageBoxInformation, ScriptDialogWindow::tr("Note")};
}

QLabel* makeSign(const Sign& sign, const QWidget& window) {
    auto* label = new QLabel;
    const int size = window.style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &window);
    label->setPixmap(window.style()->standardIcon(sign.picture).pixmap(size));
    label->setAccessibleName(sign.name);
    return label;
}

/// Wrapped if it has lines longer than read well.
QLabel* wrapped(QLabel* label) {
    const int width = paragraphWidth(*label);
    if (label->sizeHint().width() <= width) return label;
    label->setWordWrap(true);
    label->setFixedWidth(width);
    return label;
}

/// The widget itself, or where it is too tall what scrolls it.
QWidget* scrolled(QWidget* words, int tallest) {
    const QSize size = words->layout()->totalSizeHint().expandedTo(words->minimumSize());
    if (size.height() <= tallest) return words;
    auto* area = new QScrollArea;
    area->setWidget(words);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFixedSize(size.width() + area->verticalScrollBar()->sizeHint().width(), tallest);
    return area;
}

}  // namespace

ScriptDialogWindow::ScriptDialogWindow(const ScriptDialog& dialog) : m_cancelButton(dialog.cancelButton) {
    setWindowTitle(dialog.title.empty() ? tr("Keyrill Macro") : shown(dialog.title).simplified());
    setWindowIcon(programIcon());
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
    setWindowFlag(Qt::WindowCloseButtonHint, m_cancelButton.has_value());
    m_heldEscape.setSingleShot(true);
    connect(&m_heldEscape, &QTimer::timeout, this, [this] { done(Rejected); });

    auto* upper = new QHBoxLayout;
    if (const std::optional<Sign> sign = signOf(dialog)) {
        upper->addWidget(makeSign(*sign, *this), 0, Qt::AlignTop);
        upper->addSpacing(upper->spacing());
    }
    upper->addWidget(
        scrolled(makeWords(dialog), static_cast<int>(screen()->availableSize().height() * tallestWords)), 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(upper);
    if (dialog.defaultAnswer) layout->addWidget(makeField(dialog));
    if (!dialog.choices.empty()) layout->addWidget(makeChoices(dialog));
    layout->addSpacing(layout->spacing());
    layout->addWidget(makeButtons(dialog));
    if (m_choices != nullptr) followChoices(dialog);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    setFirstFocus();
    limitTime(dialog.givingUpAfter);
}

QWidget* ScriptDialogWindow::makeWords(const ScriptDialog& dialog) const {
    auto* words = new QWidget;
    auto* layout = new QVBoxLayout(words);
    layout->setContentsMargins({});
    const bool isAlert = dialog.kind == ScriptDialog::Kind::alert;
    const QString text = shown(dialog.text);
    QLabel* label = wrapped(isAlert ? makeHeading(text) : makeLine(text));
    layout->addWidget(label);
    if (!dialog.message.empty()) layout->addWidget(wrapped(makeLine(shown(dialog.message))));
    layout->addStretch();
    // A title and an answer have to fit as well.
    words->setMinimumWidth(paragraphWidth(*label) * 2 / 3);
    return words;
}

QWidget* ScriptDialogWindow::makeField(const ScriptDialog& dialog) {
    m_field = new QLineEdit;
    m_field->setMaxLength(longestAnswer);
    m_field->setText(QString::fromStdString(*dialog.defaultAnswer));
    m_field->setAccessibleName(shown(dialog.text));
    if (dialog.hidesAnswer) m_field->setEchoMode(QLineEdit::Password);
    m_field->selectAll();
    return m_field;
}

/// A row for each; a double click takes one as the default button does.
QWidget* ScriptDialogWindow::makeChoices(const ScriptDialog& dialog) {
    constexpr int mostRows = 12;
    m_choices = new QListWidget;
    m_choices->setAccessibleName(shown(dialog.text));
    m_choices->setUniformItemSizes(true);
    m_choices->setSelectionMode(dialog.allowsSeveral ? QAbstractItemView::ExtendedSelection
                                                     : QAbstractItemView::SingleSelection);
    for (const std::string& choice : dialog.choices) m_choices->addItem(shown(choice).simplified());
    for (const std::size_t place : dialog.defaultChoices)
        m_choices->item(static_cast<int>(place))->setSelected(true);
    const int row = m_choices->sizeHintForRow(0);
    const int rows = std::min(m_choices->count(), mostRows);
    m_choices->setFixedHeight(row * rows + 2 * m_choices->frameWidth());
    const int first = dialog.defaultChoices.empty() ? 0 : static_cast<int>(dialog.defaultChoices.front());
    m_choices->setCurrentRow(first, QItemSelectionModel::NoUpdate);
    return m_choices;
}

/// Nothing can be taken while nothing is chosen, unless nothing is an answer.
void ScriptDialogWindow::followChoices(const ScriptDialog& dialog) {
    const auto update = [this, allowsNone = dialog.allowsNone] {
        m_default->setEnabled(allowsNone || !m_choices->selectedItems().isEmpty());
    };
    connect(m_choices, &QListWidget::itemSelectionChanged, this, update);
    connect(m_choices, &QListWidget::itemDoubleClicked, m_default, &QPushButton::click);
    update();
}

/// They are named from left to right, whichever way the language is written.
QWidget* ScriptDialogWindow::makeButtons(const ScriptDialog& dialog) {
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins({});
    layout->addStretch();
    auto* buttons = new QHBoxLayout;
    buttons->setDirection(isLeftToRight() ? QBoxLayout::LeftToRight : QBoxLayout::RightToLeft);
    for (std::size_t place = 0; place < dialog.buttons.size(); ++place) {
        buttons->addWidget(makeButton(dialog, place));
    }
    layout->addLayout(buttons);
    return row;
}

QPushButton* ScriptDialogWindow::makeButton(const ScriptDialog& dialog, std::size_t place) {
    const QString name = shown(dialog.buttons[place]).simplified();
    auto* button = new QPushButton;
    const int widest = button->fontMetrics().averageCharWidth() * widestButton;
    // A single "&" would mark a mnemonic.
    button->setText(
        button->fontMetrics().elidedText(name, Qt::ElideRight, widest).replace(u'&', QStringLiteral("&&")));
    button->setAccessibleName(name);
    // Where the script names no default button, the toolkit is not to choose one.
    button->setAutoDefault(dialog.defaultButton.has_value());
    if (dialog.defaultButton == place) m_default = button;
    connect(button, &QPushButton::clicked, this, [this, place] { finish(place); });
    return button;
}

void ScriptDialogWindow::setFirstFocus() {
    // Not before it is in the window, or the toolkit would choose another.
    if (m_default != nullptr) m_default->setDefault(true);
    if (m_field != nullptr) return m_field->setFocus();
    if (m_choices != nullptr) return m_choices->setFocus();
    if (m_default != nullptr) return m_default->setFocus();
    // No button at all, or a blank that was meant for another window would press it.
    setFocusPolicy(Qt::StrongFocus);
    setFocus();
}

void ScriptDialogWindow::limitTime(double seconds) {
    using Milliseconds = std::chrono::milliseconds;
    constexpr double longest = std::numeric_limits<int>::max() / 1000.0;
    if (!(seconds > 0) || seconds > longest) return;
    m_patience.setSingleShot(true);
    connect(&m_patience, &QTimer::timeout, this, [this] { finish(std::nullopt); });
    m_patience.start(std::chrono::duration_cast<Milliseconds>(std::chrono::duration<double>(seconds)));
}

void ScriptDialogWindow::finish(std::optional<std::size_t> button) {
    m_answer = ScriptAnswer{button, m_field == nullptr ? std::string() : m_field->text().toStdString(), {}};
    for (int row = 0; m_choices != nullptr && row < m_choices->count(); ++row) {
        if (m_choices->item(row)->isSelected()) m_answer->chosen.push_back(static_cast<std::size_t>(row));
    }
    done(Accepted);
}

void ScriptDialogWindow::reject() {
    if (m_cancelButton) finish(m_cancelButton);
}

void ScriptDialogWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) return QDialog::keyPressEvent(event);
    if (m_cancelButton) return reject();
    if (!event->isAutoRepeat()) m_heldEscape.start(escapeHold);
}

void ScriptDialogWindow::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && !event->isAutoRepeat()) m_heldEscape.stop();
    QDialog::keyReleaseEvent(event);
}
