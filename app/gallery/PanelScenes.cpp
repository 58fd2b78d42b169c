// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#include <QDateTime>
#include <QMenu>
#include <QPushButton>
#include <map>

#include "app/check/SessionReport.h"
#include "app/controller/StatusNotice.h"
#include "app/gallery/Camera.h"
#include "app/gallery/Examples.h"
#include "app/gallery/Scenes.h"
#include "app/macros/MacroEditor.h"
#include "app/macros/MacroSettingsRow.h"
#include "app/macros/MacrosWindow.h"
#include "app/overlay/MultiplePlayWindow.h"
#include "app/overlay/RecorderWindow.h"
#include "app/overlay/SplashAnimation.h"
#include "app/overlay/SplashWindow.h"
#include "app/panels/AboutPanel.h"
#include "app/panels/PreferencesPanel.h"
#include "app/panels/StatusPanel.h"
#include "app/panels/WelcomePanel.h"
#include "app/shortcuts/CombinationText.h"
#include "app/shortcuts/PreferencesModel.h"
#include "app/shortcuts/SRRecorderControl.h"
#include "app/tray/ControlWindow.h"
#include "app/tray/StatusItem.h"
#include "app/tray/StatusMenu.h"
#include "core/Macro.h"
#include "platform/Modifiers.h"
#include "platform/Services.h"

namespace {

constexpr double overlayAlpha = 0.8;

/// A status item of which nothing but its notice is to be seen.
class ShownNotice : public StatusItem {
  public:
    explicit ShownNotice(ControlWindow& window) : m_window(window) {}

    void show(QMenu& /*menu*/, StatusImage /*image*/) override {}
    void setImage(StatusImage /*image*/) override {}
    void setNotice(const QString& notice) override { m_window.setNotice(notice); }
    QWidget* window() override { return &m_window; }
    void showWindow() override {}

  private:
    ControlWindow& m_window;
};

void takePreferences(Camera& camera) {
    PreferencesModel model;
    // GNOME's Wayland sessions alone ask.
    model.offersConsent = false;
    model.launchOnLogin.setOn(true);
    PreferencesPanel panel(model);
    camera.take(panel, QStringLiteral("preferences"));
    model.pauses.setChoice({.kind = PauseRecording::atMost, .limit = 2500});
    camera.takeShown({&panel}, QStringLiteral("preferences-pauses"));
    model.play.setNotice(QString::fromStdString(refusedHotKey().error->message));
    model.multiplePlay.setKeyCombo({});
    camera.takeShown({&panel}, QStringLiteral("preferences-notice"));
    panel.findChildren<SRRecorderControl*>().at(1)->startRecording();
    camera.takeShown({&panel}, QStringLiteral("preferences-recording"));
}

/// What can be kept of the history, or forgotten.
void takeRecordings(Camera& camera, MacrosWindow& window) {
    const QDateTime evening(QDate(2026, 11, 22), QTime(17, 40));
    window.setRecordings([evening] {
        std::vector<MacrosWindow::Recording> recordings;
        for (const char* keys : {"@d~notes\n", "Dear Ann\n", "^a^c\t^v"}) {
            const auto before = static_cast<qint64>(recordings.size()) * 100000;
            recordings.push_back({.macroId = 1,
                                  .title = QString::fromStdString(recordedMacro(keys)->displayText()),
                                  .recordedAt = evening.addSecs(-before)});
        }
        return recordings;
    });
    window.setHasRecordings(true);
    for (const QPushButton* button : window.findChildren<QPushButton*>()) {
        if (button->menu() == nullptr) continue;
        QMenu& keep = *button->menu();
        keep.popup(button->mapToGlobal(QPoint(0, button->height())));
        keep.setActiveAction(keep.actions().last());
        Camera::settle();
        camera.takeShown({&window, &keep, keep.actions().last()->menu()}, QStringLiteral("macros-keep"));
        keep.hide();
    }
}

/// With that word for "using".
std::string namesScript(const std::string& usingWord) {
    return "-- Asks for a name, and types it.\ntell application \"System Events\"\n\tdisplay dialog \"Whose "
           "name?\" default answer \"Ann\"\n\tset person to text returned of result\n\trepeat 3 times\n"
           "\t\tkeystroke person & \", \"\n\t\tkey code (36) " +
           usingWord + " {shift down}\n\tend repeat\nend tell\n";
}

void takeMacros(Camera& camera) {
    MacrosWindow window(services().keyboardLayout);
    std::map<std::string, std::string> scripts = {
        {"Greeting", recordedMacro("Dear Ann\n\n~^vKind regards\n")->script()},
        {"work/Names", namesScript("using")}};
    const KeyCombo hotKey{.flags = controlflag::control | controlflag::command, .code = 18};
    window.setItems({{"Greeting", QStringLiteral("Greeting"), {}, combinationText(hotKey)},
                     {"Signature", QStringLiteral("Signature"), {}},
                     {"work/Mail", QStringLiteral("Mail"), QStringLiteral("work")},
                     {"work/Names", QStringLiteral("Names"), QStringLiteral("work")}});
    QObject::connect(&window, &MacrosWindow::chosenChanged,
                     [&](const std::string& path) { window.showMacro(scripts[path], scripts[path]); });
    window.choose("Greeting");
    window.setHasRecordings(true);
    window.settings().showSettings(hotKey, {.times = {3}, .speed = 1.5});
    camera.take(window, QStringLiteral("macros"));
    takeRecordings(camera, window);
    window.choose("work/Names");
    window.settings().showSettings(hotKey, {.times = PlayTimes::untilStopped()});
    window.settings().setNotice(
        QCoreApplication::translate("ShortcutNotices", "Already used by macro \"%1\".").arg("Greeting"));
    camera.takeShown({&window}, QStringLiteral("macros-other-script"));
    window.settings().setNotice({});
    window.editor().showScriptTab(true);
    window.showMacro(scripts["work/Names"], namesScript("usin"));
    camera.takeShown({&window}, QStringLiteral("macros-script"));
    window.tell(QCoreApplication::translate("MacrosDesk", "The macro is in the trash."),
                QCoreApplication::translate("MacrosDesk", "Undo"));
    camera.takeShown({&window}, QStringLiteral("macros-told"));
    window.countDown();
    camera.takeShown({&window}, QStringLiteral("macros-count"));
}

void takeOverlay(Camera& camera) {
    RecorderWindow overlay;
    overlay.setWindowOpacity(overlayAlpha);
    overlay.setMacroString(recordedMacro("Hello@a~^c\tDear Ann\n")->fullDisplayText());
    camera.take(overlay, QStringLiteral("overlay"));
    std::string keys;
    for (int i = 0; i < 5000; ++i) keys += "one line of many@s\n";
    overlay.setMacroString(recordedMacro(keys)->fullDisplayText());
    camera.takeShown({&overlay}, QStringLiteral("overlay-long"));
}

void takePrompt(Camera& camera) {
    MultiplePlayWindow prompt;
    prompt.setWindowOpacity(overlayAlpha);
    prompt.focusTimesText();
    camera.take(prompt, QStringLiteral("prompt"));
    prompt.setPlays(false);
    camera.takeShown({&prompt}, QStringLiteral("prompt-no-macro"));
}

void takeControlWindow(Camera& camera) {
    StatusMenu menu;
    ControlWindow window(menu);
    camera.take(window, QStringLiteral("control-window"));
    window.setStandsIn(false);
    camera.takeShown({&window}, QStringLiteral("control-window-second-start"));
    ShownNotice item(window);
    StatusNotice(item).noteHotKey(3, refusedHotKey());
    camera.takeShown({&window}, QStringLiteral("control-window-notice"));
}

/// A session in which not all is as it might be.
void takeStatus(Camera& camera) {
    const auto fully = [](Means means) { return CapabilityState{Extent::fully, means, Lack::nothing}; };
    SessionFacts facts;
    facts.kind = "x11";
    facts.capabilities = {.recording = fully(Means::xInput),
                          .hotKeys = fully(Means::xGrab),
                          .pressing = fully(Means::xTest),
                          .text = fully(Means::xTest),
                          .clipboard = fully(Means::xSelection),
                          .overlay = fully(Means::xWindow),
                          .windows = fully(Means::windowManager),
                          .tray = {Extent::nothing, Means::none, Lack::tray}};
    facts.details = {.display = ":0", .parts = {{"XInput 2.2", true}, {"XTEST", true}}, .layouts = {"us"}};
    facts.hasSessionBus = true;
    facts.isRunning = true;
    const PreferencesModel model;
    const auto words = [](const ShortcutModel& shortcut) {
        return combinationText(shortcut.keyCombo()).toStdString();
    };
    facts.hotKeys = {{.shortcut = 0, .combination = words(model.record), .finding = HotKeyFinding::ours},
                     {.shortcut = 2,
                      .combination = words(model.play),
                      .finding = HotKeyFinding::taken,
                      .why = *refusedHotKey().error}};
    StatusPanel status;
    status.setReport(sessionReport(facts));
    camera.take(status, QStringLiteral("status"));
    status.hide();
}

}  // namespace

void takePanels(Camera& camera) {
    const PreferencesModel model;
    WelcomePanel welcome(model);
    camera.take(welcome, QStringLiteral("welcome"));
    welcome.hide();
    takePreferences(camera);
    takeMacros(camera);
    AboutPanel about;
    camera.take(about, QStringLiteral("about"));
    about.hide();
    takeStatus(camera);
    SplashWindow splash;
    splash.show();
    splash.splashAnim().stopRendering();
    camera.take(splash, QStringLiteral("splash"));
    splash.hide();
    takeOverlay(camera);
    takePrompt(camera);
    takeControlWindow(camera);
}
