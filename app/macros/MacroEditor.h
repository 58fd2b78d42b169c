// SPDX-License-Identifier: MIT
#pragma once

#include <QUndoStack>
#include <QWidget>
#include <string>

#include "library/steps/RecordedScript.h"

class KeyboardLayout;
class KeysView;
class QTabWidget;
class ScriptEditor;

/// One macro to read and change, under Keys or under Script: two views of the same text, each of which can be
/// undone what was done in the other as one step.
class MacroEditor : public QWidget {
    Q_OBJECT

  public:
    /// The layout outlives the editor.
    explicit MacroEditor(const KeyboardLayout& layout, QWidget* parent = nullptr);

    /// Another macro. `saved` is what its file holds, `text` what is shown: the same, or what was not saved.
    void showMacro(const std::string& saved, const std::string& text);
    /// What is shown has been saved.
    void noteSaved();
    /// UTF-8.
    std::string text() const;
    bool isChanged() const { return text() != m_saved; }

    KeysView& keys() { return *m_keys; }
    ScriptEditor& script() { return *m_script; }
    bool showsScript() const;
    void showScriptTab(bool shows);

  signals:
    /// The text is another.
    void edited();
    void recordWanted();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void focusContent();
    void apply(const steps::Splice& splice);
    void followTab();

    QTabWidget* m_tabs;
    KeysView* m_keys;
    ScriptEditor* m_script;
    /// What both show; what is typed under Script comes into it when the tab is left.
    std::string m_text;
    std::string m_saved;
    QUndoStack m_undo;
    bool m_isLoading = false;
};
