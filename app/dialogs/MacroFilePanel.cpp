// SPDX-License-Identifier: MIT
#include "app/dialogs/MacroFilePanel.h"

#include <QFileInfo>
#include <QLineEdit>
#include <QSettings>

#include "app/dialogs/MacroFileName.h"
#include "app/icons/ProgramIcon.h"

namespace {

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
    setWindowIcon(programIcon());
    setViewMode(List);
    setDirectory(folder);
    setNameFilter(tr("Keyrill macros (*.%1)").arg(QLatin1String(macroSuffix)));
    setDefaultSuffix(QLatin1String(macroSuffix));
    if (kind == Kind::save) {
        setWindowTitle(tr("Save Macro"));
        setAcceptMode(AcceptSave);
        setFileMode(AnyFile);
    } else {
        setWindowTitle(tr("Load Macro"));
        setAcceptMode(AcceptOpen);
        setFileMode(ExistingFile);
    }
}

QString MacroFilePanel::path() const { return selectedFiles().value(0); }

void MacroFilePanel::accept() {
    auto* name = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (acceptMode() == AcceptSave && name != nullptr)
        name->setText(macroFileName(name->text(), directory()));
    QFileDialog::accept();
}
