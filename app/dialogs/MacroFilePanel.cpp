// SPDX-License-Identifier: MIT
#include "app/dialogs/MacroFilePanel.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QFileInfo>
#include <QGridLayout>
#include <QLineEdit>
#include <QSettings>

#include "app/dialogs/AlertDialog.h"
#include "app/dialogs/AlertTexts.h"
#include "app/dialogs/MacroFileName.h"
#include "app/icons/ProgramIcon.h"
#include "app/widgets/NoticeLine.h"

namespace {

/// What the toolkit calls the field for the name.
const QString fileNameField = QStringLiteral("fileNameEdit");

/// The toolkit's own dialog would keep sizes and visited folders in a file of the user's.
void keepNoSettings() {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null/none"));
}

bool isSandboxed() {
    return QFileInfo::exists(QStringLiteral("/.flatpak-info")) || qEnvironmentVariableIsSet("SNAP");
}

}  // namespace

MacroFilePanel::MacroFilePanel(Kind kind, const QString& folder) {
    keepNoSettings();
    setOption(DontUseNativeDialog, !isSandboxed());
    setOption(DontConfirmOverwrite, !isSandboxed());
    setWindowIcon(programIcon());
    setViewMode(List);
    setDirectory(folder);
    setNameFilter(tr("Keyrill macros (*.%1)").arg(QLatin1String(macroSuffix)));
    setDefaultSuffix(QLatin1String(macroSuffix));
    if (kind == Kind::save) {
        setWindowTitle(tr("Save Macro"));
        setAcceptMode(AcceptSave);
        setFileMode(AnyFile);
        makeNotice();
    } else {
        setWindowTitle(tr("Load Macro"));
        setAcceptMode(AcceptOpen);
        setFileMode(ExistingFile);
    }
    if (nameField() != nullptr) m_completer = nameField()->completer();
}

// The toolkit greys its button without a word.
void MacroFilePanel::makeNotice() {
    QLineEdit* name = nameField();
    auto* grid = qobject_cast<QGridLayout*>(layout());
    if (name == nullptr || grid == nullptr) return;
    m_notice = new NoticeLine(this);
    grid->addWidget(m_notice, grid->rowCount(), 0, 1, -1);
    connect(name, &QLineEdit::textChanged, this, [this](const QString& text) {
        const bool fits = fitsAsFileName(macroFileName(text, directory()));
        m_notice->setNotice(fits ? QString() : tr("This name is too long for a file."));
    });
}

QString MacroFilePanel::path() const { return choice(); }

void MacroFilePanel::beginAnew(const QString& folder) {
    setDirectory(folder);
    for (auto* view : findChildren<QAbstractItemView*>()) view->clearSelection();
    QLineEdit* name = nameField();
    if (name == nullptr) return;
    // Clearing it would be kept as what can be undone, and all that was ever typed with it.
    name->setText({});
    name->setCompleter(m_completer);
    name->setFocus();
}

void MacroFilePanel::done(int result) {
    QFileDialog::done(result);
    if (m_completer == nullptr) return;
    // It would offer names as soon as one appears in the folder, the saved one for example, and hold the
    // keyboard.
    m_completer->setCompletionPrefix(QString());
    m_completer->popup()->hide();
    nameField()->setCompleter(nullptr);
}

QLineEdit* MacroFilePanel::nameField() const { return findChild<QLineEdit*>(fileNameField); }

void MacroFilePanel::accept() {
    QLineEdit* name = nameField();
    if (name != nullptr && !(acceptMode() == AcceptSave ? isToBeSaved(*name) : isToBeLoaded())) return;
    QFileDialog::accept();
}

bool MacroFilePanel::isToBeSaved(QLineEdit& name) {
    name.setText(macroFileName(name.text(), directory()));
    if (!fitsAsFileName(name.text())) return false;
    const QFileInfo file(choice());
    return !file.exists() || file.isDir() || confirm(alerts::replaceFile(file.filePath()));
}

bool MacroFilePanel::isToBeLoaded() {
    const QFileInfo file(choice());
    if (choice().isEmpty() || file.isDir()) return true;
    if (file.exists() && isMacroFileName(file.fileName())) return true;
    confirm(file.exists() ? alerts::noMacroFile(file.filePath()) : alerts::fileNotFound(file.filePath()));
    return false;
}

bool MacroFilePanel::confirm(const AlertText& text) {
    AlertDialog alert(text, this);
    alert.exec();
    return alert.answer() == AlertAnswer::defaultButton;
}
