// SPDX-License-Identifier: MIT
#include "app/macros/ScriptEditor.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QCompleter>
#include <QFontDatabase>
#include <QPainter>
#include <QScrollBar>
#include <QStringListModel>
#include <QTextBlock>
#include <algorithm>
#include <chrono>

#include "app/macros/ScriptColours.h"
#include "app/macros/ScriptHighlighter.h"
#include "app/macros/ScriptLayout.h"
#include "library/steps/RecordedScript.h"

namespace {

constexpr std::chrono::milliseconds checkDelay{150};
/// Of a text that takes long to check.
constexpr std::chrono::milliseconds longCheckDelay{1000};
/// From so many letters on words are offered.
constexpr int lettersBegun = 2;
constexpr int tabLetters = 4;

class LineNumbers : public QWidget {
  public:
    explicit LineNumbers(ScriptEditor& editor) : QWidget(&editor), m_editor(editor) {}
    QSize sizeHint() const override { return {m_editor.numbersWidth(), 0}; }

  protected:
    void paintEvent(QPaintEvent* event) override { m_editor.paintNumbers(*event); }

  private:
    ScriptEditor& m_editor;
};

QColor mixed(const QColor& one, const QColor& other, qreal share) {
    return QColor::fromRgbF(static_cast<float>(one.redF() * (1 - share) + other.redF() * share),
                            static_cast<float>(one.greenF() * (1 - share) + other.greenF() * share),
                            static_cast<float>(one.blueF() * (1 - share) + other.blueF() * share));
}

}  // namespace

ScriptEditor::ScriptEditor(QWidget* parent) : QPlainTextEdit(parent) {
    setLayoutDirection(Qt::LeftToRight);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setAccessibleName(tr("Script"));
    setTabStopDistance(fontMetrics().horizontalAdvance(u' ') * tabLetters);
    makeDocument();
    makeNumbers();
    makeCompleter();
    m_check.setSingleShot(true);
    connect(&m_check, &QTimer::timeout, this, &ScriptEditor::checkScript);
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        const bool isLong = document()->characterCount() > static_cast<int>(longestColoured);
        m_check.start(isLong ? longCheckDelay : checkDelay);
    });
}

ScriptEditor::~ScriptEditor() = default;

void ScriptEditor::makeDocument() {
    auto* text = new QTextDocument(this);
    m_layout = new ScriptLayout(text);
    text->setDocumentLayout(m_layout);
    text->setDefaultFont(font());
    QTextOption option = text->defaultTextOption();
    option.setTextDirection(Qt::LeftToRight);
    option.setTabStopDistance(tabStopDistance());
    text->setDefaultTextOption(option);
    setDocument(text);
    m_highlighter = new ScriptHighlighter(text, palette());
}

void ScriptEditor::makeNumbers() {
    m_numbers = new LineNumbers(*this);
    connect(this, &QPlainTextEdit::blockCountChanged, this, &ScriptEditor::placeNumbers);
    connect(this, &QPlainTextEdit::updateRequest, m_numbers, [this](const QRect& area, int scrolled) {
        if (scrolled != 0) {
            m_numbers->scroll(0, scrolled);
        } else {
            m_numbers->update(0, area.y(), m_numbers->width(), area.height());
        }
    });
    placeNumbers();
}

void ScriptEditor::makeCompleter() {
    QStringList phrases;
    for (const std::string& phrase : scriptPhrases()) phrases.append(QString::fromStdString(phrase));
    m_completer = new QCompleter(phrases, this);
    m_completer->setWidget(this);
    m_completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_completer->setCompletionMode(QCompleter::PopupCompletion);
    m_completer->popup()->setAccessibleName(tr("Words of the script language"));
    connect(m_completer, qOverload<const QString&>(&QCompleter::activated), this, &ScriptEditor::complete);
}

// The plain text would have blanks in the place of no-break spaces.
std::string ScriptEditor::script() const {
    return document()->toRawText().replace(QChar::ParagraphSeparator, u'\n').toStdString();
}

void ScriptEditor::setScript(const std::string& script) {
    m_layout->setNotes({});
    // Else all lines of the old text would be read again for nothing.
    m_highlighter->setDocument(nullptr);
    setPlainText(QString::fromStdString(script));
    if (script.size() <= longestColoured) m_highlighter->setDocument(document());
    checkScript();
}

void ScriptEditor::changeScript(const std::string& script) {
    const std::string before = this->script();
    const steps::Splice splice = steps::spliceBetween(before, script);
    const auto units = [&before](std::size_t from, std::size_t count) {
        return static_cast<int>(
            QString::fromUtf8(before.data() + from, static_cast<qsizetype>(count)).size());
    };
    QTextCursor cursor(document());
    const int position = units(0, splice.offset);
    cursor.setPosition(position);
    cursor.setPosition(position + units(splice.offset, splice.removed), QTextCursor::KeepAnchor);
    cursor.insertText(QString::fromStdString(splice.inserted));
    checkScript();
}

void ScriptEditor::checkScript() {
    m_check.stop();
    m_problems = problemsOf(script());
    showProblems();
    emit checked();
}

void ScriptEditor::showProblems() {
    std::map<int, ScriptLayout::Note> notes;
    for (const ScriptProblem& problem : m_problems) {
        ScriptLayout::Note& note = notes[problem.line - 1];
        if (!note.text.isEmpty()) note.text += u' ';
        note.text += QString::fromStdString(problem.text);
        note.isError = problem.isError;
    }
    QStringList told;
    //: of a script; what is wrong, or could be
    for (const auto& [line, note] : notes) told.append(tr("Line %1: %2").arg(line + 1).arg(note.text));
    // What is drawn below the lines nobody could have read out.
    setAccessibleDescription(told.join(u' '));
    m_layout->setNotes(std::move(notes));
    viewport()->update();
    m_numbers->update();
}

int ScriptEditor::numbersWidth() const {
    const int digits = static_cast<int>(QString::number(std::max(blockCount(), 100)).size());
    return fontMetrics().horizontalAdvance(u'9') * (digits + 2);
}

void ScriptEditor::placeNumbers() {
    setViewportMargins(numbersWidth(), 0, 0, 0);
    const QRect inside = contentsRect();
    m_numbers->setGeometry(inside.left(), inside.top(), numbersWidth(), inside.height());
}

void ScriptEditor::paintNumbers(QPaintEvent& event) {
    QPainter painter(m_numbers);
    const QColor ground = mixed(palette().color(QPalette::Base), palette().color(QPalette::Text), 0.06);
    const QColor ink = mixed(ground, palette().color(QPalette::Text), 0.6);
    painter.fillRect(event.rect(), ground);
    painter.setFont(font());
    painter.setPen(ink);
    const int letter = fontMetrics().horizontalAdvance(u'9');
    QRectF line = blockBoundingGeometry(firstVisibleBlock()).translated(contentOffset());
    for (QTextBlock block = firstVisibleBlock(); block.isValid() && line.top() <= event.rect().bottom();
         block = block.next()) {
        painter.drawText(QRectF(0, line.top(), m_numbers->width() - letter, fontMetrics().height()),
                         Qt::AlignRight, QString::number(block.blockNumber() + 1));
        line = QRectF(line.left(), line.bottom(), line.width(), blockBoundingRect(block.next()).height());
    }
}

void ScriptEditor::paintEvent(QPaintEvent* event) {
    QPlainTextEdit::paintEvent(event);
    QPainter painter(viewport());
    for (const auto& [number, note] : m_layout->notes()) {
        const QTextBlock block = document()->findBlockByNumber(number);
        if (block.isValid()) paintProblem(painter, block);
    }
}

void ScriptEditor::paintProblem(QPainter& painter, const QTextBlock& block) const {
    const QRectF area = blockBoundingGeometry(block).translated(contentOffset());
    if (area.bottom() < 0 || area.top() > viewport()->height()) return;
    const ScriptLayout::Note& note = m_layout->notes().at(block.blockNumber());
    const bool isDark = palette().color(QPalette::Base).lightness() < 128;
    const QColor ink =
        note.isError ? QColor(isDark ? 0xff8a80 : 0xc01c28) : QColor(isDark ? 0xffd479 : 0x8a5a00);
    const QRectF room(0, area.bottom() - m_layout->noteHeight(), viewport()->width(), m_layout->noteHeight());
    painter.fillRect(room, mixed(palette().color(QPalette::Base), ink, 0.12));
    painter.setPen(ink);
    const qreal indent = document()->documentMargin();
    const QString text = (note.isError ? QStringLiteral("✖ ") : QStringLiteral("⚠ ")) + note.text;
    QFont small = QWidget::font();
    painter.setFont(small);
    const QRectF inside = room.adjusted(indent, 0, -indent, 0);
    painter.drawText(inside, Qt::AlignLeft | Qt::AlignVCenter,
                     QFontMetricsF(small).elidedText(text, Qt::ElideRight, inside.width()));
}

void ScriptEditor::resizeEvent(QResizeEvent* event) {
    QPlainTextEdit::resizeEvent(event);
    placeNumbers();
}

void ScriptEditor::changeEvent(QEvent* event) {
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_highlighter != nullptr)
        m_highlighter->setPalette(palette());
}

/// The whole of what is said of the line under the mouse.
bool ScriptEditor::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const QPoint place = viewport()->mapFromGlobal(QCursor::pos());
        const auto& notes = m_layout->notes();
        const auto found = notes.find(cursorForPosition(place).blockNumber());
        viewport()->setToolTip(found == notes.end() ? QString() : found->second.text);
    }
    return QPlainTextEdit::event(event);
}

QString ScriptEditor::wordBegun() const {
    const QTextCursor cursor = textCursor();
    const QString line = cursor.block().text().left(cursor.positionInBlock());
    qsizetype begin = line.size();
    while (begin > 0 && (line.at(begin - 1).isLetter())) --begin;
    return line.mid(begin);
}

bool ScriptEditor::isInTextOrComment() const {
    const QTextCursor cursor = textCursor();
    const ScriptLine line =
        readScriptLine(cursor.block().text(), std::max(cursor.block().previous().userState(), 0));
    const int before = cursor.positionInBlock() - 1;
    return std::any_of(line.spans.begin(), line.spans.end(), [before](const ScriptSpan& span) {
        const bool isWords = span.part == ScriptPart::text || span.part == ScriptPart::comment;
        return isWords && span.begin <= before && before < span.begin + span.length;
    });
}

void ScriptEditor::complete(const QString& phrase) {
    QTextCursor cursor = textCursor();
    cursor.movePosition(QTextCursor::Left, QTextCursor::KeepAnchor,
                        static_cast<int>(m_completer->completionPrefix().size()));
    cursor.insertText(phrase);
    setTextCursor(cursor);
}

void ScriptEditor::offerPhrases() {
    m_completer->setCompletionPrefix(wordBegun());
    QAbstractItemView* const popup = m_completer->popup();
    const bool isWhole = m_completer->completionCount() == 1 &&
                         m_completer->currentCompletion() == m_completer->completionPrefix();
    if (m_completer->completionCount() == 0 || isWhole) return popup->hide();
    QRect place = cursorRect();
    place.translate(viewport()->pos());
    place.setWidth(popup->sizeHintForColumn(0) + popup->verticalScrollBar()->sizeHint().width());
    m_completer->complete(place);
}

void ScriptEditor::keyPressEvent(QKeyEvent* event) {
    QAbstractItemView* const popup = m_completer->popup();
    const bool isEnd =
        event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Tab;
    if (popup->isVisible() &&
        ((isEnd && popup->currentIndex().isValid()) || event->key() == Qt::Key_Escape)) {
        // The popup's own.
        event->ignore();
        return;
    }
    if (isEnd) popup->hide();
    const bool isAsked = event->key() == Qt::Key_Space && event->modifiers() == Qt::ControlModifier;
    if (isAsked) return offerPhrases();
    QPlainTextEdit::keyPressEvent(event);
    const bool isTyped = !event->text().isEmpty() && event->text().at(0).isLetter();
    if (isTyped && wordBegun().size() >= lettersBegun && !isInTextOrComment()) {
        offerPhrases();
    } else if (popup->isVisible() && wordBegun().size() < lettersBegun) {
        popup->hide();
    }
}
