// SPDX-License-Identifier: MIT
#include "app/controller/OverlayDesk.h"

#include <QApplication>

#include "app/controller/Stage.h"
#include "app/overlay/Alphas.h"
#include "app/overlay/MultiplePlayWindow.h"
#include "app/overlay/RecorderWindow.h"
#include "app/overlay/SplashAnimation.h"
#include "app/overlay/SplashWindow.h"
#include "app/overlay/WindowOnLayer.h"
#include "engine/MacroPlayer.h"
#include "platform/Clock.h"
#include "platform/HotKeys.h"
#include "platform/Layers.h"

namespace {

/// What the desktop gets to bring the previous application to the front.
constexpr Clock::Seconds pauseBeforeMultiplePlay{0.5};

/// Belongs to the window from then on.
template <typename Window>
void putOnLayer(Window& window, Layers& layers, WindowOnLayer::Input input) {
    if (!layers.areOffered()) return;
    new WindowOnLayer(window, layers, input,
                      [&window](const QSize& screen) { return window.placeOn(screen); });
}

}  // namespace

OverlayDesk::OverlayDesk(Stage& stage, Clock& clock, const HotKeys& hotKeys, Layers& layers)
    : m_stage(stage), m_clock(clock), m_hotKeys(hotKeys), m_layers(layers) {}

OverlayDesk::~OverlayDesk() = default;

RecorderWindow& OverlayDesk::builtRecorder() {
    if (m_recorder) return *m_recorder;
    m_recorder = std::make_unique<RecorderWindow>();
    putOnLayer(*m_recorder, m_layers, WindowOnLayer::Input::letsThrough);
    return *m_recorder;
}

void OverlayDesk::showRecorder() {
    RecorderWindow& recorder = builtRecorder();
    recorder.place();
    m_keysAreHeldBack = false;
    m_waitsForPermission = false;
    setMacroString("");
    m_stage.fadeIn(recorder, overlayAlpha);
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

void OverlayDesk::setWaitsForPermission(bool waits) {
    m_waitsForPermission = waits;
    refreshRecorder();
}

void OverlayDesk::refreshRecorder() {
    if (!m_recorder) return;
    if (m_waitsForPermission) {
        return m_recorder->setMacroString(tr("Waiting for your permission").toStdString());
    }
    m_recorder->setMacroString(m_keysAreHeldBack ? tr("Not recorded: keyboard held").toStdString()
                                                 : m_macroString);
}

MultiplePlayWindow& OverlayDesk::builtPrompt() {
    if (m_prompt) return *m_prompt;
    m_prompt = std::make_unique<MultiplePlayWindow>();
    connect(m_prompt.get(), &MultiplePlayWindow::confirmed, this, &OverlayDesk::promptConfirmed);
    connect(m_prompt.get(), &MultiplePlayWindow::dismissed, this, &OverlayDesk::dismissPrompt);
    m_prompt->place();
    putOnLayer(*m_prompt, m_layers, WindowOnLayer::Input::takes);
    return *m_prompt;
}

void OverlayDesk::showPrompt(bool plays) {
    MultiplePlayWindow& prompt = builtPrompt();
    prompt.setPlays(plays);
    prompt.focusTimesText();
    if (!prompt.isVisible()) m_isAskedFromWindow = QApplication::activeWindow() != nullptr;
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
    // From a layer the focus goes back to where it was. Windows that were hidden for nothing would be given
    // it by many a compositor when they are shown anew.
    if (m_isAskedFromWindow || !WindowOnLayer::holds(*m_prompt)) m_stage.hide(m_prompt.get());
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
