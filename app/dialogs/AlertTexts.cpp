// SPDX-License-Identifier: MIT
#include "app/dialogs/AlertTexts.h"

#include <QCoreApplication>
#include <QFileInfo>

#include "app/dialogs/MacroFileName.h"

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(Alerts)
};

/// What is wrong and, in a paragraph of its own, what to do.
QString explained(const Error& error) {
    const QString message = QString::fromStdString(error.message);
    return error.hint.empty() ? message
                              : message + QStringLiteral("\n\n") + QString::fromStdString(error.hint);
}

AlertText warning(const QString& title, const QString& message) {
    return {.kind = AlertText::Kind::warning,
            .title = title,
            .message = message,
            .defaultButton = Words::tr("OK")};
}

AlertText warning(const QString& title, const Error& error) { return warning(title, explained(error)); }

QString nameOf(const QString& path) { return QFileInfo(path).fileName(); }

AlertText updateAlert(const QString& yes, const QString& no) {
    return {.kind = AlertText::Kind::informational,
            .title = Words::tr("Keyrill Update Available"),
            .message =
                Words::tr("There is a new update available for Keyrill, would you like to download it now?"),
            .defaultButton = yes,
            .alternateButton = no};
}

}  // namespace

namespace alerts {

AlertText sessionTooOld(const Error& error) {
    return {.kind = AlertText::Kind::stop,
            .title = QString::fromStdString(error.message),
            .message = QString::fromStdString(error.hint),
            .defaultButton = Words::tr("OK")};
}

AlertText noAccess(const Error& error) {
    const QString hint = error.hint.empty() ? QString() : QString::fromStdString(error.hint) + u' ';
    return {.kind = AlertText::Kind::critical,
            .title = QString::fromStdString(error.message),
            .message =
                Words::tr("Keyrill requires that programs can see and press keys in this session. ") + hint +
                Words::tr("Please see the 'Configuration' section of the documentation for more "
                          "information.\n\nKeyrill must close, please restart it once this is possible.\n"),
            .defaultButton = Words::tr("Open Documentation now"),
            .alternateButton = Words::tr("Quit")};
}

AlertText cannotRecord(const Error& error) {
    return warning(Words::tr("Recording is not possible in this session yet"), error);
}

AlertText recordingEnded(const Error& error, bool isSomethingKept) {
    if (!isSomethingKept) return warning(Words::tr("Nothing was recorded"), error);
    return warning(
        Words::tr("The recording has ended"),
        explained(error) + QStringLiteral("\n\n") + Words::tr("What was recorded until then is kept."));
}

AlertText updateAvailable() { return updateAlert(Words::tr("YES"), Words::tr("NO")); }

AlertText updateAvailableSheet() { return updateAlert(Words::tr("Yes"), Words::tr("No")); }

AlertText noUpdate() {
    return {.kind = AlertText::Kind::informational,
            .title = Words::tr("No Update Available"),
            .message = Words::tr("You're currently running the latest version of Keyrill"),
            .defaultButton = Words::tr("OK")};
}

AlertText macroNotSaved(const QString& path, const Error& error) {
    return warning(Words::tr("The macro was not saved as \"%1\".").arg(nameOf(path)), error);
}

AlertText macroNotLoaded(const QString& path, const Error& error) {
    return warning(Words::tr("No macro was loaded from \"%1\".").arg(nameOf(path)), error);
}

AlertText replaceFile(const QString& path) {
    return {.kind = AlertText::Kind::warning,
            .title = Words::tr("\"%1\" is there already.").arg(nameOf(path)),
            .message = Words::tr("Do you want to replace it? What is in it will be lost."),
            .defaultButton = Words::tr("Replace"),
            .alternateButton = Words::tr("Cancel")};
}

AlertText noMacroFile(const QString& path) {
    return warning(
        Words::tr("\"%1\" is not a macro file.").arg(nameOf(path)),
        Words::tr("The names of Keyrill's macro files end with \".%1\".").arg(QLatin1String(macroSuffix)));
}

AlertText fileNotFound(const QString& path) {
    return warning(Words::tr("There is no file \"%1\".").arg(nameOf(path)),
                   Words::tr("Check the name, or choose one of the list."));
}

AlertText settingsNotSaved(const Error& error) {
    return warning(Words::tr("Your settings were not saved."), error);
}

AlertText loginItemNotSet(const Error& error) {
    return warning(Words::tr("Whether Keyrill starts when you log in could not be changed."), error);
}

AlertText mayWriteHotKeys() {
    return {.kind = AlertText::Kind::informational,
            .title = Words::tr("May Keyrill write its hot keys into GNOME's settings?"),
            .message = Words::tr(
                "This version of GNOME has hot keys for programs only as custom shortcuts in your own "
                "settings. Keyrill would write one there for each of its combinations, and take them out "
                "when it ends. It does not touch what is yours.\n\nYou can change your mind in Keyrill's "
                "preferences."),
            .defaultButton = Words::tr("Write Them"),
            .alternateButton = Words::tr("Not Now"),
            .otherButton = Words::tr("Never")};
}

AlertText settingsFault(const Error& error) {
    return warning(Words::tr("Something is wrong with your settings."), error);
}

}  // namespace alerts
