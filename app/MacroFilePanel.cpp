// SPDX-License-Identifier: MIT
#include "app/MacroFilePanel.h"

#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QSettings>

#include "app/ProgramIcon.h"

namespace {

const QString suffix = QStringLiteral("keyrill");

/// The toolkit's own dialog would keep sizes and visited folders in a file of the user's.
void keepNoSettings() {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null/none"));
}

bool isSandboxed() {
    return QFileInfo::exists(QStringLiteral("/.flatpak-info")) || qEnvironmentVariableIsSet("SNAP");
}

/// The name with its suffix; as it is where it names a folder to go to.
QString withSuffix(const QString& name, const QDir& folder) {
    const bool isFolder = name.isEmpty() || name.endsWith(u'/') || name == QStringLiteral("~") ||
                          QFileInfo(folder, name).isDir();
    const bool hasSuffix = name.endsWith(u'.' + suffix, Qt::CaseInsensitive);
    return isFolder || hasSuffix ? name : name + u'.' + suffix;
}

}  // namespace

MacroFilePanel::MacroFilePanel(Kind kind, const QString& folder) {
    keepNoSettings();
    setOption(DontUseNativeDialog, !isSandboxed());
    setWindowIcon(programIcon());
    setViewMode(List);
    setDirectory(folder);
    setNameFilter(tr("Keyrill macros (*.%1)").arg(suffix));
    setDefaultSuffix(suffix);
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
    if (acceptMode() == AcceptSave && name != nullptr) name->setText(withSuffix(name->text(), directory()));
    QFileDialog::accept();
}
