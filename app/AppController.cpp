// SPDX-License-Identifier: MIT
#include "app/AppController.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>
#include <chrono>
#include <cstring>

#include "app/Fades.h"
#include "app/MacroMenuItem.h"
#include "app/MultiplePlayWindow.h"
#include "app/RecorderWindow.h"
#include "app/StatusItem.h"
#include "core/MacroManager.h"
#include "engine/AppleScript.h"
#include "engine/EngineState.h"
#include "engine/HotKeyCenter.h"
#include "engine/KeyRecorder.h"
#include "engine/MacroPlayer.h"
#include "platform/Clock.h"
#include "platform/ScriptingService.h"
#include "platform/Services.h"
#include "platform/Windows.h"
#include "prefs/Settings.h"

namespace {

constexpr double overlayAlpha = 0.8;
constexpr std::chrono::milliseconds splashDelay{500};
constexpr std::chrono::seconds refreshInterval{30};
/// What the desktop gets to bring the previous application to the front.
constexpr Clock::Seconds pauseBeforeMultiplePlay{0.5};

WindowId windowIdOf(const QWidget& window) { return static_cast<WindowId>(window.winId()); }

}  // namespace

AppController::AppController(Services& services, Windows& windows, StatusItem& item)
    : statusItem(item), m_services(services), m_windows(windows), m_shared(*this) {
    m_splashTimer.setSingleShot(true);
    connect(&m_splashTimer, &QTimer::timeout, this, &AppController::runSplash);
    connect(&m_refreshTimer, &QTimer::timeout, this, &AppController::refreshAppleScript);
    connectMenu();
}

AppController::~AppController() = default;

void AppController::connectMenu() {
    using MenuAction = void (AppController::*)(QObject*);
    const auto connectItem = [this](QAction* item, MenuAction action) {
        connect(item, &QAction::triggered, this, [this, item, action] { (this->*action)(item); });
    };
    connectItem(statusMenu.recordMenuItem, &AppController::recordMacro);
    connectItem(statusMenu.stopMenuItem, &AppController::stopMacro);
    connectItem(statusMenu.saveDelayMenuItem, &AppController::saveDelayToNow);
    connectItem(statusMenu.playMenuItem, &AppController::playMacro);
    connectItem(statusMenu.multiplePlayMenuItem, &AppController::multiPlayMacro);
    connect(statusMenu.quitMenuItem, &QAction::triggered, this, &AppController::kill);
}

void AppController::awakeFromNib() {
    m_services.hotKeys.observe([this](HotKeyId id, const HotKeyState& state) { noteHotKey(id, state); });
    installHotKeyHandlers();
    updateMenu();
    installKeyRecorder();
    activateBusyStatusMenu();
    loadHotKeys(m_services.settings);
    m_splashTimer.start(splashDelay);
    registerHotKeys();
    m_refreshTimer.start(refreshInterval);
}

// QCoreApplication::quit() would close each window first, and a window could refuse.
void AppController::kill() { QCoreApplication::exit(0); }

void AppController::activateBusyStatusMenu() { statusItem.show(statusMenu, StatusImage::busy); }

void AppController::activateStatusMenu() { statusItem.setImage(StatusImage::normal); }

void AppController::runSplash() { activateStatusMenu(); }

void AppController::refreshAppleScript() { m_services.scripting.run(""); }

void AppController::setMacroString(const std::string& text) {
    if (m_recorderWindow) m_recorderWindow->setMacroString(text);
}

void AppController::showRecordingGui() {
    m_facts.recording = true;
    updateMenu();
    if (!m_recorderWindow) m_recorderWindow = std::make_unique<RecorderWindow>();
    m_recorderWindow->place();
    m_recorderWindow->setMacroString("");
    fadeInPanel(m_recorderWindow.get(), overlayAlpha);
    m_facts.overlayShown = true;
    updateMenu();
    restartLastEventTime();
}

void AppController::hideRecordingGui() {
    m_facts.recording = false;
    m_facts.hasStopped = true;
    m_facts.overlayShown = false;
    updateMenu();
    if (m_recorderWindow) fadeOutPanel(m_recorderWindow.get());
}

void AppController::showMultiplePlayGui() {
    if (!m_multiplePlayWindow) buildMultiplePlayWindow();
    updateMenu();
    m_multiplePlayWindow->focusTimesText();
    unhide();
    fadeInPanel(m_multiplePlayWindow.get(), overlayAlpha);
    // A press that is long past is no permission to take the focus; the click on the menu is.
    const std::uint32_t time = m_openedFromMenu ? 0 : m_services.hotKeys.lastPressTime();
    m_windows.activate(windowIdOf(*m_multiplePlayWindow), time);
}

void AppController::buildMultiplePlayWindow() {
    m_multiplePlayWindow = std::make_unique<MultiplePlayWindow>();
    connect(m_multiplePlayWindow.get(), &MultiplePlayWindow::confirmed, this,
            [this] { doMultiplePlay(m_multiplePlayWindow.get()); });
    connect(m_multiplePlayWindow.get(), &MultiplePlayWindow::dismissed, this,
            &AppController::dismissMultiplePlay);
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    const QSize size = m_multiplePlayWindow->size();
    m_multiplePlayWindow->move(screen.x() + (screen.width() - size.width()) / 2,
                               screen.y() + (screen.height() - size.height()) / 3);
}

void AppController::dismissMultiplePlay() {
    fadeOutPanel(m_multiplePlayWindow.get());
    awaitFocusElsewhere(m_multiplePlayWindow.get());
}

void AppController::addMacro(const boost::shared_ptr<Macro>& macro) {
    auto* item = new MacroMenuItem(QString::fromStdString(macro->displayText()), statusMenu.historyMenu);
    item->setMacroId(macro->macroId());
    connect(item, &QAction::triggered, this, [this, item] { runMacro(item); });
    const QList<QAction*> entries = statusMenu.historyMenu->actions();
    statusMenu.historyMenu->insertAction(entries.isEmpty() ? nullptr : entries.first(), item);
    m_facts.hasHistory = true;
    updateMenu();
}

void AppController::recordMacro(QObject* /*sender*/) { toggleRecording(); }

void AppController::stopMacro(QObject* /*sender*/) { stopRecording(); }

void AppController::saveDelayToNow(QObject* /*sender*/) { ::saveDelayToNow(); }

void AppController::playMacro(QObject* /*sender*/) {
    awaitFocusElsewhere(nullptr);
    playTimes(1);
}

void AppController::multiPlayMacro(QObject* /*sender*/) {
    m_openedFromMenu = true;
    promptMultiplePlay();
    m_openedFromMenu = false;
}

void AppController::doMultiplePlay(QObject* /*sender*/) {
    fadeOutPanel(m_multiplePlayWindow.get());
    hide();
    m_services.clock.sleepFor(pauseBeforeMultiplePlay);
    const std::int32_t count = playCountFromText(m_multiplePlayWindow->timesText().toStdString());
    awaitFocusElsewhere(m_multiplePlayWindow.get());
    playTimes(count);
    unhide();
}

void AppController::runMacro(QObject* sender) {
    if (std::strcmp(sender->metaObject()->className(), "MacroMenuItem") != 0) return;
    const boost::shared_ptr<Macro> macro =
        MacroManager::macro(static_cast<MacroMenuItem*>(sender)->macroId());
    engineState().currentMacro = macro;
    const std::string script = macro->script();
    updateMenu();
    awaitFocusElsewhere(nullptr);
    m_services.scripting.startPlayback();
    AppleScript::runAppleScript(script);
}

QWidget* AppController::overlayWindow() const { return m_recorderWindow.get(); }

QWidget* AppController::promptWindow() const { return m_multiplePlayWindow.get(); }

void AppController::fadeInPanel(QWidget* window, double alpha) { fadeIn(*window, alpha); }

void AppController::fadeOutPanel(QWidget* window) { fadeOut(*window); }

void AppController::hide() {
    for (QWidget* window : {static_cast<QWidget*>(m_multiplePlayWindow.get()), statusItem.window()}) {
        if (window == nullptr || !window->isVisible() || window->isMinimized()) continue;
        window->hide();
        m_hidden.emplace_back(window);
    }
}

void AppController::unhide() {
    for (const QPointer<QWidget>& window : m_hidden) {
        if (window) window->show();
    }
    m_hidden.clear();
}

void AppController::updateMenu() {
    m_facts.hasMacro = engineState().currentMacro != nullptr;
    const MenuState state = menuState(m_facts);
    statusMenu.apply(state);
    if (m_multiplePlayWindow) m_multiplePlayWindow->setPlays(state.promptPlays);
}

void AppController::awaitFocusElsewhere(const QWidget* hidden) {
    m_windows.awaitFocusElsewhere(hidden == nullptr ? Windows::none : windowIdOf(*hidden));
}

void AppController::noteHotKey(HotKeyId id, const HotKeyState& state) {
    if (state.status == HotKeyStatus::refused && state.error) {
        m_refusedHotKeys[id] = state.error->message;
    } else {
        m_refusedHotKeys.erase(id);
    }
    QStringList lines;
    for (const auto& [refused, message] : m_refusedHotKeys) lines.append(QString::fromStdString(message));
    statusItem.setNotice(lines.join(QLatin1Char('\n')));
}
