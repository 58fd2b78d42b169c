// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>

#include "app/dialogs/AlertSheet.h"
#include "app/dialogs/AlertTexts.h"
#include "app/dialogs/MacroFilePanel.h"
#include "app/dialogs/ScriptDialogWindow.h"
#include "app/gallery/Camera.h"
#include "app/gallery/Scenes.h"
#include "app/panels/PreferencesPanel.h"
#include "app/shortcuts/PreferencesModel.h"
#include "platform/AsciiText.h"
#include "platform/Sentence.h"

namespace {

/// The words of a session whose X server is another one than this, which has it.
Error missingExtension() {
    return {sentence("Session", "The X server must have the XTEST extension, but it has not."),
            sentence("Session", "Use a newer X server, or switch the extension on in its settings.")};
}

void takeAlert(Camera& camera, const AlertText& text, const char* name) {
    AlertDialog alert(text);
    camera.take(alert, QLatin1String(name));
}

void takeSheet(Camera& camera, const AlertText& text, const char* name) {
    PreferencesModel model;
    // GNOME's Wayland sessions alone ask.
    model.offersConsent = false;
    PreferencesPanel panel(model);
    panel.move(80, 80);
    panel.show();
    Camera::settle();
    AlertSheet sheet(panel, text, {});
    sheet.setAttribute(Qt::WA_DeleteOnClose, false);
    sheet.open();
    camera.takeShown({&panel, &sheet}, QLatin1String(name));
}

void takeScriptDialog(Camera& camera, const ScriptDialog& dialog, const char* name) {
    ScriptDialogWindow window(dialog);
    camera.take(window, QLatin1String(name));
}

void takeScriptDialogs(Camera& camera) {
    takeScriptDialog(camera,
                     {.text = "Who is it for?",
                      .title = "Weekly report",
                      .buttons = {"Cancel", "OK"},
                      .defaultButton = 1,
                      .cancelButton = 0,
                      .defaultAnswer = "Ann & Bob"},
                     "script-dialog");
    takeScriptDialog(
        camera,
        {.text = "This replaces the <b>whole</b> table in the window that you are in, from its first "
                 "line to the last one. Go on?\n\nNothing can be undone & nothing is asked again.",
         .icon = ScriptDialog::Icon::caution,
         .buttons = {"Stop", "Only this line", "Go on"},
         .defaultButton = 2,
         .cancelButton = 0},
        "script-dialog-icon");
    takeScriptDialog(camera,
                     {.text = "Password:",
                      .buttons = {"Cancel", "OK"},
                      .defaultButton = 1,
                      .cancelButton = 0,
                      .defaultAnswer = "secret",
                      .hidesAnswer = true},
                     "script-dialog-hidden");
    takeScriptDialog(camera,
                     {.kind = ScriptDialog::Kind::alert,
                      .text = "The table is full",
                      .message = "120 lines were typed, 3 were left out.",
                      .buttons = {"OK"},
                      .defaultButton = 0},
                     "script-alert");
    std::string lines;
    for (int line = 1; line <= 200; ++line) lines += "Line " + std::to_string(line) + "\n";
    takeScriptDialog(camera, {.text = lines, .buttons = {"OK"}, .defaultButton = 0}, "script-dialog-long");
}

void takeFilePanel(Camera& camera, MacroFilePanel::Kind kind, const QString& folder, const char* name) {
    MacroFilePanel panel(kind, folder);
    camera.take(panel, QLatin1String(name));
}

/// Asked from within the panel.
void takeReplaceQuestion(Camera& camera, const QString& folder) {
    MacroFilePanel panel(MacroFilePanel::Kind::save, folder);
    panel.move(80, 80);
    panel.show();
    panel.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(QStringLiteral("Greeting"));
    QTimer::singleShot(0, [&camera, &panel] {
        QTimer::singleShot(0, [&camera, &panel] {
            auto* question = qobject_cast<AlertDialog*>(QApplication::activeModalWidget());
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
    takeAlert(camera, alerts::noAccess(missingExtension()), "alert-access");
    takeAlert(camera,
              alerts::macroNotSaved(QStringLiteral("/home/user/Grüße.keyrill"),
                                    checkAscii("-- Names\n\nset name to \"Zoë\"\n").error()),
              "alert-not-saved");
    takeSheet(camera, alerts::updateAvailableSheet(), "sheet-update");
    takeSheet(camera, alerts::noUpdate(), "sheet-no-update");

    takeScriptDialogs(camera);

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
