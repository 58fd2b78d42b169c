// SPDX-License-Identifier: MIT
#include "app/controller/GatedDialogs.h"

#include <utility>

#include "app/controller/Gate.h"

namespace {

/// A question that is open for the life of the scope.
class Question {
  public:
    explicit Question(Gate& gate) : m_gate(gate) { m_gate.questionOpens(); }
    ~Question() { m_gate.questionCloses(); }
    Question(const Question&) = delete;
    Question& operator=(const Question&) = delete;

  private:
    Gate& m_gate;
};

}  // namespace

AlertAnswer GatedDialogs::runAlert(const AlertText& text) {
    const Question question(m_gate);
    return m_dialogs.runAlert(text);
}

void GatedDialogs::beginSheet(QWidget& panel, const AlertText& text, DidEnd didEnd) {
    m_gate.questionOpens();
    m_dialogs.beginSheet(panel, text, [this, didEnd = std::move(didEnd)](AlertAnswer answer) {
        m_gate.questionCloses();
        if (didEnd) didEnd(answer);
    });
}

QString GatedDialogs::runSavePanel(const QString& folder) {
    const Question question(m_gate);
    return m_dialogs.runSavePanel(folder);
}

QString GatedDialogs::runOpenPanel(const QString& folder) {
    const Question question(m_gate);
    return m_dialogs.runOpenPanel(folder);
}

std::optional<ScriptAnswer> GatedDialogs::runScriptDialog(const ScriptDialog& dialog,
                                                          const IsStopped& isStopped) {
    const Question question(m_gate);
    return m_dialogs.runScriptDialog(dialog, isStopped);
}
