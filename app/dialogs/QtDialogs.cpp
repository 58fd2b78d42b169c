// SPDX-License-Identifier: MIT
#include "app/dialogs/QtDialogs.h"

#include <QTimer>
#include <chrono>
#include <utility>
#ifdef __GLIBC__
#include <malloc.h>
#endif

#include "app/dialogs/AlertSheet.h"
#include "app/dialogs/ScriptDialogWindow.h"

namespace {

/// Only while a script's question is open; less than anybody notices.
constexpr std::chrono::milliseconds betweenLooks{50};

/// A panel takes much for a moment, the more the more files there are. What is free then, also between what
/// is kept, goes back to the system.
void giveBackFreedMemory() {
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

}  // namespace

QtDialogs::QtDialogs(Focus focus) : m_focus(std::move(focus)) {}
QtDialogs::~QtDialogs() = default;

AlertAnswer QtDialogs::runAlert(const AlertText& text) {
    AlertDialog alert(text);
    // It has no window of the program to lie above.
    alert.setWindowFlag(Qt::WindowStaysOnTopHint);
    run(alert);
    return alert.answer();
}

void QtDialogs::beginSheet(QWidget& panel, const AlertText& text, DidEnd didEnd) {
    auto* sheet = new AlertSheet(panel, text, std::move(didEnd));
    sheet->open();
}

QString QtDialogs::runSavePanel(const QString& folder) {
    return run(m_savePanel, MacroFilePanel::Kind::save, folder);
}

QString QtDialogs::runOpenPanel(const QString& folder) {
    return run(m_openPanel, MacroFilePanel::Kind::open, folder);
}

QString QtDialogs::run(std::unique_ptr<MacroFilePanel>& panel, MacroFilePanel::Kind kind,
                       const QString& folder) const {
    if (!panel) panel = std::make_unique<MacroFilePanel>(kind, folder);
    panel->beginAnew(folder);
    const int result = run(*panel);
    giveBackFreedMemory();
    return result == QDialog::Accepted ? panel->path() : QString();
}

std::optional<ScriptAnswer> QtDialogs::runScriptDialog(const ScriptDialog& dialog,
                                                       const IsStopped& isStopped) {
    ScriptDialogWindow window(dialog);
    QTimer looks;
    QObject::connect(&looks, &QTimer::timeout, &window, [&] {
        if (isStopped()) window.done(QDialog::Rejected);
    });
    looks.start(betweenLooks);
    window.setWindowFlag(Qt::WindowStaysOnTopHint);
    run(window);
    return window.answer();
}

int QtDialogs::run(QDialog& dialog) const {
    // Once the loop of the dialog runs, its window is there.
    if (m_focus.take) QTimer::singleShot(0, &dialog, [this, &dialog] { m_focus.take(dialog); });
    const int result = dialog.exec();
    dialog.hide();
    if (m_focus.awaitElsewhere) m_focus.awaitElsewhere(dialog);
    return result;
}
