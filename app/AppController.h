// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <boost/smart_ptr/shared_ptr.hpp>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "app/MenuState.h"
#include "app/StatusMenu.h"
#include "engine/SharedController.h"
#include "platform/HotKeys.h"

class MultiplePlayWindow;
class QWidget;
class RecorderWindow;
class StatusItem;
class Windows;
struct Services;

/// The one controller: joins engine and desktop with the menu and the windows, and is the only one to know
/// both sides. The engine reaches it from its construction on.
///
/// Actions take their sender and, but for runMacro(), ignore it; where the program calls one itself it passes
/// null. Windows are built when first shown.
class AppController : public QObject, public SharedController {
    Q_OBJECT

  public:
    AppController(Services& services, Windows& windows, StatusItem& item);
    ~AppController() override;

    /// Start-up. To be called from within the event loop, so that what ends the program really ends it.
    void awakeFromNib();
    /// Ends the event loop.
    void kill();

    // SharedController
    void setMacroString(const std::string& text) override;
    void showRecordingGui() override;
    void hideRecordingGui() override;
    void showMultiplePlayGui() override;
    void addMacro(const boost::shared_ptr<Macro>& macro) override;

    void activateBusyStatusMenu();
    void activateStatusMenu();
    void runSplash();
    /// Runs an empty script, so that the scripting service is ready when it is needed.
    void refreshAppleScript();

    void recordMacro(QObject* sender);
    void stopMacro(QObject* sender);
    void saveDelayToNow(QObject* sender);
    void playMacro(QObject* sender);
    void multiPlayMacro(QObject* sender);
    void doMultiplePlay(QObject* sender);
    /// Makes the macro of a MacroMenuItem the current one and plays it; other senders are ignored.
    void runMacro(QObject* sender);

    void fadeInPanel(QWidget* window, double alpha);
    void fadeOutPanel(QWidget* window);

    /// Takes the program's ordinary windows off the screen and remembers which; the overlay stays.
    void hide();
    /// Brings them back, without taking the focus.
    void unhide();

    StatusItem& statusItem;
    StatusMenu statusMenu;

    /// The windows as such; null until first shown.
    QWidget* overlayWindow() const;
    QWidget* promptWindow() const;

  private:
    void connectMenu();
    void buildMultiplePlayWindow();
    void dismissMultiplePlay();
    void updateMenu();
    /// Waits until keys reach the application that the user was in; `hidden` is a window of ours, or null.
    void awaitFocusElsewhere(const QWidget* hidden);
    void noteHotKey(HotKeyId id, const HotKeyState& state);

    Services& m_services;
    Windows& m_windows;
    SharedControllerScope m_shared;
    MenuFacts m_facts;
    std::unique_ptr<RecorderWindow> m_recorderWindow;
    std::unique_ptr<MultiplePlayWindow> m_multiplePlayWindow;
    std::vector<QPointer<QWidget>> m_hidden;
    std::map<HotKeyId, std::string> m_refusedHotKeys;
    QTimer m_splashTimer;
    QTimer m_refreshTimer;
    /// Whether the prompt is being opened from a menu, not by its hot key.
    bool m_openedFromMenu = false;
};
