// SPDX-License-Identifier: MIT
#include <QGuiApplication>
#include <QScreen>

#include "app/controller/AppController.h"
#include "app/dialogs/AlertTexts.h"
#include "app/overlay/Alphas.h"
#include "app/overlay/Fades.h"
#include "app/overlay/MultiplePlayWindow.h"
#include "app/overlay/RecorderWindow.h"
#include "app/overlay/SplashAnimation.h"
#include "app/overlay/SplashWindow.h"
#include "app/panels/AboutPanel.h"
#include "app/panels/PreferencesPanel.h"
#include "app/panels/WelcomePanel.h"
#include "app/widgets/IsShown.h"
#include "engine/KeyRecorder.h"
#include "engine/MacroPlayer.h"
#include "platform/Addresses.h"
#include "platform/Clock.h"
#include "platform/Services.h"
#include "platform/Windows.h"

namespace {

/// What the desktop gets to bring the previous application to the front.
constexpr Clock::Seconds pauseBeforeMultiplePlay{0.5};

WindowId windowIdOf(const QWidget& window) { return static_cast<WindowId>(window.winId()); }

void showWithoutFocus(QWidget& window) {
    const bool quietly = window.testAttribute(Qt::WA_ShowWithoutActivating);
    window.setAttribute(Qt::WA_ShowWithoutActivating);
    window.show();
    window.setAttribute(Qt::WA_ShowWithoutActivating, quietly);
}

}  // namespace

void AppController::setMacroString(const std::string& text) {
    if (m_recorderWindow) m_recorderWindow->setMacroString(text);
}

void AppController::showRecordingGui() {
    m_facts.recording = true;
    updateMenu();
    if (downloadsUpdateInstead()) {
        cancelRecording();
        return;
    }
    if (!m_recorderWindow) m_recorderWindow = std::make_unique<RecorderWindow>();
    m_recorderWindow->place();
    m_recorderWindow->setMacroString("");
    fadeInPanel(m_recorderWindow.get(), overlayAlpha);
    m_facts.overlayShown = true;
    updateMenu();
    restartLastEventTime();
}

// The answer of the check at start-up, given when the user turns to the program. It is given once.
bool AppController::downloadsUpdateInstead() {
    if (!checkForUpdateCompleted || !updateAvailable) return false;
    const AlertAnswer answer = m_dialogs.runAlert(alerts::updateAvailable());
    checkForUpdateCompleted = false;
    updateAvailable = false;
    if (answer != AlertAnswer::defaultButton) return false;
    openPage(addresses::downloadPage);
    return true;
}

void AppController::hideRecordingGui() {
    m_facts.recording = false;
    m_facts.hasStopped = true;
    m_facts.overlayShown = false;
    updateMenu();
    if (m_recorderWindow) fadeOutPanel(m_recorderWindow.get());
}

void AppController::showMultiplePlayGui() {
    MultiplePlayWindow& prompt = builtMultiplePlayWindow();
    updateMenu();
    prompt.focusTimesText();
    unhide();
    fadeInPanel(&prompt, overlayAlpha);
    // A press that is long past is no permission to take the focus; the click on the menu is.
    const std::uint32_t time = m_openedFromMenu ? 0 : m_services.hotKeys.lastPressTime();
    m_windows.activate(windowIdOf(prompt), time);
}

MultiplePlayWindow& AppController::builtMultiplePlayWindow() {
    if (m_multiplePlayWindow) return *m_multiplePlayWindow;
    m_multiplePlayWindow = std::make_unique<MultiplePlayWindow>();
    MultiplePlayWindow& prompt = *m_multiplePlayWindow;
    connect(&prompt, &MultiplePlayWindow::confirmed, this,
            [this] { perform(&AppController::doMultiplePlay, m_multiplePlayWindow.get()); });
    connect(&prompt, &MultiplePlayWindow::dismissed, this, &AppController::dismissMultiplePlay);
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    prompt.move(screen.x() + (screen.width() - prompt.width()) / 2,
                screen.y() + (screen.height() - prompt.height()) / 3);
    return prompt;
}

void AppController::dismissMultiplePlay() {
    fadeOutPanel(m_multiplePlayWindow.get());
    awaitFocusElsewhere(m_multiplePlayWindow.get());
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

void AppController::awaitFocusElsewhere(const QWidget* hidden) {
    m_windows.awaitFocusElsewhere(hidden == nullptr ? Windows::none : windowIdOf(*hidden));
}

void AppController::runSplash() {
    if (runCheckForUpdates) backgroundCheckForUpdates();
    activateStatusMenu();
    tellFaults();
}

SplashWindow& AppController::builtSplashWindow() {
    if (!m_splashWindow) m_splashWindow = std::make_unique<SplashWindow>();
    return *m_splashWindow;
}

void AppController::hideSplashScreen() {
    if (!m_splashWindow) return;
    m_splashWindow->hide();
    m_splashWindow->splashAnim().stopRendering();
}

void AppController::fadeInPanel(QWidget* window, double alpha) {
    alphaZero(window);
    animatePanelIn(window, alpha);
}

void AppController::fadeOutPanel(QWidget* window) {
    animatePanelOut(window);
    window->hide();
    endFade(*window);
}

void AppController::animatePanelIn(QWidget* window, double alpha) {
    if (window->isMinimized()) {
        window->showNormal();
    } else {
        window->show();
    }
    animateAlpha(*window, alpha);
}

void AppController::animatePanelOut(QWidget* window) { animateAlpha(*window, 0); }

void AppController::alphaZero(QWidget* window) { setAlpha(*window, 0); }

void AppController::presentPanel(Panel& panel) {
    unhide();
    fadeInPanel(&panel, panelAlpha);
    panel.raise();
    m_windows.activate(windowIdOf(panel), 0);
}

std::vector<QWidget*> AppController::ordinaryWindows() const {
    return {m_multiplePlayWindow.get(), m_preferencesWindow.get(), m_aboutPanel.get(),
            m_welcomePanel.get(),       m_splashWindow.get(),      statusItem.window()};
}

void AppController::hide() {
    for (QWidget* window : ordinaryWindows()) {
        if (!isShown(window)) continue;
        window->hide();
        m_hidden.emplace_back(window);
    }
}

void AppController::unhide() {
    for (const QPointer<QWidget>& window : m_hidden) {
        if (window) showWithoutFocus(*window);
    }
    m_hidden.clear();
}
