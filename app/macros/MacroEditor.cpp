// SPDX-License-Identifier: MIT
#include "app/macros/MacroEditor.h"

#include <QKeyEvent>
#include <QTabBar>
#include <QTabWidget>
#include <QUndoCommand>
#include <QVBoxLayout>
#include <functional>
#include <utility>

#include "app/macros/KeysView.h"
#include "app/macros/ScriptEditor.h"

namespace {

constexpr int keysTab = 0;
constexpr int scriptTab = 1;

/// A splice of the text that can be taken back.
class TextEdit : public QUndoCommand {
  public:
    using Follow = std::function<void()>;

    TextEdit(std::string& text, steps::Splice splice, Follow follow)
        : m_text(text),
          m_there(std::move(splice)),
          m_back{m_there.offset, m_there.inserted.size(), text.substr(m_there.offset, m_there.removed)},
          m_follow(std::move(follow)) {}

    void redo() override { perform(m_there); }
    void undo() override { perform(m_back); }

  private:
    void perform(const steps::Splice& splice) {
        m_text = spliced(std::move(m_text), splice);
        m_follow();
    }

    std::string& m_text;
    steps::Splice m_there;
    steps::Splice m_back;
    Follow m_follow;
};

}  // namespace

MacroEditor::MacroEditor(const KeyboardLayout& layout, QWidget* parent)
    : QWidget(parent), m_tabs(new QTabWidget), m_keys(new KeysView(layout)), m_script(new ScriptEditor) {
    m_tabs->addTab(m_keys, tr("&Keys"));
    m_tabs->addTab(m_script, tr("S&cript"));
    m_tabs->setDocumentMode(true);
    m_tabs->tabBar()->installEventFilter(this);
    auto* box = new QVBoxLayout(this);
    box->setContentsMargins(0, 0, 0, 0);
    box->addWidget(m_tabs);
    connect(m_keys, &KeysView::editWanted, this, &MacroEditor::apply);
    connect(m_keys, &KeysView::recordWanted, this, &MacroEditor::recordWanted);
    connect(m_tabs, &QTabWidget::currentChanged, this, &MacroEditor::followTab);
    connect(m_script, &QPlainTextEdit::textChanged, this, [this] {
        if (!m_isLoading) emit edited();
    });
}

/// Whoever goes to a tab by its letter is to be in it.
bool MacroEditor::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_tabs->tabBar() && event->type() == QEvent::Shortcut)
        QMetaObject::invokeMethod(this, &MacroEditor::focusContent, Qt::QueuedConnection);
    return QWidget::eventFilter(watched, event);
}

void MacroEditor::focusContent() { m_tabs->currentWidget()->setFocus(Qt::ShortcutFocusReason); }

bool MacroEditor::showsScript() const { return m_tabs->currentIndex() == scriptTab; }

void MacroEditor::showScriptTab(bool shows) { m_tabs->setCurrentIndex(shows ? scriptTab : keysTab); }

void MacroEditor::showMacro(const std::string& saved, const std::string& text) {
    m_isLoading = true;
    m_undo.clear();
    m_saved = saved;
    m_text = text;
    // Each is filled when it is looked at: a long one takes its time.
    if (showsScript()) {
        m_script->setScript(m_text);
    } else {
        m_script->setScript({});
        m_keys->showScript(m_text);
    }
    m_script->document()->setModified(false);
    m_isLoading = false;
}

void MacroEditor::noteSaved() {
    m_text = text();
    m_saved = m_text;
    m_script->document()->setModified(false);
}

// The document has other line ends than files may have.
std::string MacroEditor::text() const {
    return showsScript() && m_script->document()->isModified() ? m_script->script() : m_text;
}

void MacroEditor::apply(const steps::Splice& splice) {
    m_undo.push(new TextEdit(m_text, splice, [this] {
        if (!showsScript()) m_keys->showScript(m_text);
        emit edited();
    }));
}

void MacroEditor::followTab() {
    if (showsScript()) {
        m_isLoading = true;
        if (m_script->document()->isEmpty()) {
            m_script->setScript(m_text);
        } else if (m_script->script() != m_text) {
            m_script->changeScript(m_text);
        }
        m_script->document()->setModified(false);
        m_isLoading = false;
    } else if (m_script->document()->isModified()) {
        apply(steps::spliceBetween(m_text, m_script->script()));
    } else {
        m_keys->showScript(m_text);
    }
}

/// Under Keys; the script's own are its own.
void MacroEditor::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Undo)) {
        m_undo.undo();
    } else if (event->matches(QKeySequence::Redo)) {
        m_undo.redo();
    } else {
        QWidget::keyPressEvent(event);
    }
}
