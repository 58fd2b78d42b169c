// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <cstdint>
#include <memory>
#include <string>

class Clock;
class HotKeys;
class Layers;
class MultiplePlayWindow;
class RecorderWindow;
class SplashWindow;
class Stage;

/// The windows that lie above all others: what is recorded, the prompt, the splash. Each is built when first
/// needed and kept.
class OverlayDesk : public QObject {
    Q_OBJECT

  public:
    /// All outlive the desk. The recorder and the prompt are shown on layers where those are offered.
    OverlayDesk(Stage& stage, Clock& clock, const HotKeys& hotKeys, Layers& layers);
    ~OverlayDesk() override;

    /// With an empty text, in its place.
    void showRecorder();
    void hideRecorder();
    /// While the screen is locked it is off the screen, whatever else.
    void setRecorderVisible(bool visible);
    void setMacroString(const std::string& text);
    /// Keys are not recorded, since another program has them for itself: that is shown in place of the text.
    void setKeysHeldBack(bool heldBack);
    /// Nothing is recorded before the user has allowed it: that is shown.
    void setWaitsForPermission(bool waits);

    /// Fades in with the focus. `plays` is whether its button and Return play.
    void showPrompt(bool plays);
    void dismissPrompt();
    void setPromptPlays(bool plays);
    /// Fades the prompt out, takes the ordinary windows off the screen and waits until keys reach the
    /// application that the user was in. The count that the prompt holds.
    std::int32_t leaveToPlay();
    /// Whether the prompt is being opened from a menu, not by its hot key.
    bool opensFromMenu = false;

    /// Nothing shows it yet.
    SplashWindow& builtSplash();
    void hideSplash();

    // Null until first needed.
    RecorderWindow* recorder() const { return m_recorder.get(); }
    MultiplePlayWindow* prompt() const { return m_prompt.get(); }
    SplashWindow* splash() const { return m_splash.get(); }

  signals:
    /// The user has confirmed the prompt.
    void promptConfirmed();

  private:
    RecorderWindow& builtRecorder();
    MultiplePlayWindow& builtPrompt();
    void refreshRecorder();

    Stage& m_stage;
    Clock& m_clock;
    const HotKeys& m_hotKeys;
    Layers& m_layers;
    std::unique_ptr<RecorderWindow> m_recorder;
    std::string m_macroString;
    bool m_keysAreHeldBack = false;
    bool m_waitsForPermission = false;
    std::unique_ptr<MultiplePlayWindow> m_prompt;
    /// Whether the user was in another window of ours when the prompt came.
    bool m_isAskedFromWindow = false;
    std::unique_ptr<SplashWindow> m_splash;
};
