// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>

#include "app/PreferencesModel.h"
#include "app/dialogs/AlertSheet.h"
#include "app/dialogs/AlertTexts.h"
#include "app/dialogs/MacroFilePanel.h"
#include "app/gallery/Camera.h"
#include "app/gallery/Scenes.h"
#include "app/panels/PreferencesPanel.h"

namespace {

void takeAlert(Camera& camera, const AlertText& text, const char* name) {
    AlertDialog alert(text);
    camera.take(alert, QLatin1String(name));
}

void takeSheet(Camera& camera, const AlertText& text, const char* name) {
    PreferencesModel model;
    PreferencesPanel panel(model);
    panel.move(80, 80);
    panel.show();
    Camera::settle();
    AlertSheet sheet(panel, text, {});
    sheet.setAttribute(Qt::WA_DeleteOnClose, false);
    sheet.open();
    camera.takeShown({&panel, &sheet}, QLatin1String(name));
}

void takeFilePanel(Camera& camera, MacroFilePanel::Kind kind, const QString& folder, const char* name) {
    MacroFilePanel panel(kind, folder);
    camera.take(panel, QLatin1String(name));
}

/// Asked by the toolkit from within the panel.
void takeReplaceQuestion(Camera& camera, const QString& folder) {
    MacroFilePanel panel(MacroFilePanel::Kind::save, folder);
    panel.move(80, 80);
    panel.show();
    panel.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(QStringLiteral("Greeting"));
    QTimer::singleShot(0, [&camera, &panel] {
        QTimer::singleShot(0, [&camera, &panel] {
            auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            camera.takeShown({&panel, question}, QStringLiteral("replace"));
            question->close();
        });
    });
    QTimer::singleShot(0, [&panel] { QMetaObject::invokeMethod(&panel, "accept"); });
    Camera::settle();
}

}  // namespace

void takeDialogs(Camera& camera) {
    takeAlert(camera, alerts::updateAvailable(), "alert-update");
    takeAlert(camera,
              alerts::noAccess(
                  Error{"This X server has no XTEST extension.", "Without it no program can press keys."}),
              "alert-access");
    takeAlert(camera,
              alerts::macroNotSaved(
                  QStringLiteral("/home/user/Grüße.keyrill"),
                  Error{"Line 3, character 12: \"ü\" is not ASCII.", "Macro files hold ASCII only."}),
              "alert-not-saved");
    takeSheet(camera, alerts::updateAvailableSheet(), "sheet-update");
    takeSheet(camera, alerts::noUpdate(), "sheet-no-update");

    const QTemporaryDir home;
    const QDir folder(home.path() + QStringLiteral("/keyrill"));
    folder.mkpath(QStringLiteral("."));
    for (const char* name : {"Address.keyrill", "Greeting.keyrill", "Weekly report.keyrill"}) {
        QFile file(folder.filePath(QLatin1String(name)));
        if (!file.open(QIODevice::WriteOnly)) qFatal("cannot write macros");
    }
    takeFilePanel(camera, MacroFilePanel::Kind::open, folder.path(), "load");
    takeFilePanel(camera, MacroFilePanel::Kind::save, folder.path(), "save");
    takeReplaceQuestion(camera, folder.path());
}
