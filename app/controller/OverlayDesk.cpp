// SPDX-License-Identifier: MIT
#include "app/controller/OverlayDesk.h"

#include <QGuiApplication>
#include <QScreen>

#include "app/controller/Stage.h"
#include "app/overlay/Alphas.h"
#include "app/overlay/MultiplePlayWindow.h"
#include "app/overlay/RecorderWindow.h"
#include "app/overlay/SplashAnimation.h"
#include "app/overlay/SplashWindow.h"
#include "engine/MacroPlayer.h"
#include "platform/Clock.h"
#include "platform/HotKeys.h"

namespace {

/// What the desktop gets to bring the previous application to the front.
constexpr Clock::Seconds pauseBeforeMultiplePlay{0.5};

}  // namespace

OverlayDesk::OverlayDesk(Stage& stage, Clock& clock, const HotKeys& hotKeys)
    : m_stage(stage), m_clock(clock), m_hotKeys(hotKeys) {}

OverlayDesk::~OverlayDesk() = default;

void OverlayDesk::showRecorder() {
    if (!m_recorder) m_recorder = std::make_unique<RecorderWindow>();
    m_recorder->place();
    m_keysAreHeldBack = false;
    setMacroString("");
    m_stage.fadeIn(*m_recorder, overlayAlpha);
}

void OverlayDesk::hideRecorder() {
    if (m_recorder) m_stage.fadeOut(*m_recorder);
}

void OverlayDesk::setRecorderVisible(bool visible) {
    if (m_recorder) m_recorder->setVisible(visible);
}

void OverlayDesk::setMacroString(const std::string& text) {
    m_macroString = text;
    refreshRecorder();
}

void OverlayDesk::setKeysHeldBack(bool heldBack) {
    m_keysAreHeldBack = heldBack;
    refreshRecorder();
}

void OverlayDesk::refreshRecorder() {
    if (!m_recorder) return;
    m_recorder->setMacroString(m_keysAreHeldBack ? tr("Not recorded: keyboard held").toStdString()
                                                 : m_macroString);
}

MultiplePlayWindow& OverlayDesk::builtPrompt() {
    if (m_prompt) return *m_prompt;
    m_prompt = std::make_unique<MultiplePlayWindow>();
    connect(m_prompt.get(), &MultiplePlayWindow::confirmed, this, &OverlayDesk::promptConfirmed);
    connect(m_prompt.get(), &MultiplePlayWindow::dismissed, this, &OverlayDesk::dismissPrompt);
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    m_prompt->move(screen.x() + (screen.width() - m_prompt->width()) / 2,
                   screen.y() + (screen.height() - m_prompt->height()) / 3);
    return *m_prompt;
}

void OverlayDesk::showPrompt(bool plays) {
    MultiplePlayWindow& prompt = builtPrompt();
    prompt.setPlays(plays);
    prompt.focusTimesText();
    m_stage.unhide();
    m_stage.fadeIn(prompt, overlayAlpha);
    // A press that is long past is no permission to take the focus; the click on the menu is.
    m_stage.activate(prompt, opensFromMenu ? 0 : m_hotKeys.lastPressTime());
}

void OverlayDesk::dismissPrompt() {
    m_stage.fadeOut(*m_prompt);
    m_stage.awaitFocusElsewhere(m_prompt.get());
}

void OverlayDesk::setPromptPlays(bool plays) {
    if (m_prompt) m_prompt->setPlays(plays);
}

std::int32_t OverlayDesk::leaveToPlay() {
    // The prompt has the focus and goes last: while it is there, nobody passes the focus on to one of the
    // others, to be lost with that.
    m_stage.hide(m_prompt.get());
    m_stage.fadeOut(*m_prompt);
    m_clock.sleepFor(pauseBeforeMultiplePlay);
    const std::int32_t count = playCountFromText(m_prompt->timesText().toStdString());
    m_stage.awaitFocusElsewhere(m_prompt.get());
    return count;
}

SplashWindow& OverlayDesk::builtSplash() {
    if (!m_splash) m_splash = std::make_unique<SplashWindow>();
    return *m_splash;
}

void OverlayDesk::hideSplash() {
    if (!m_splash) return;
    m_splash->hide();
    m_splash->splashAnim().stopRendering();
}
