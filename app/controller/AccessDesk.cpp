// SPDX-License-Identifier: MIT
#include "app/controller/AccessDesk.h"

#include <utility>

#include "app/controller/OverlayDesk.h"
#include "app/dialogs/AlertTexts.h"
#include "app/dialogs/Dialogs.h"
#include "core/Macro.h"
#include "engine/EngineState.h"
#include "engine/KeyRecorder.h"
#include "engine/MacroPlayer.h"
#include "platform/Notifications.h"

AccessDesk::AccessDesk(EventMonitor& monitor, Notifications& notifications, Dialogs& dialogs,
                       OverlayDesk& overlays, std::chrono::milliseconds delay)
    : m_monitor(monitor), m_notifications(notifications), m_dialogs(dialogs), m_overlays(overlays) {
    m_explains.setSingleShot(true);
    m_explains.setInterval(delay);
    connect(&m_explains, &QTimer::timeout, this, &AccessDesk::tellWhy);
    m_monitor.observeAccess(
        [this](EventMonitor::Access access, const std::optional<Error>& why) { follow(access, why); });
}

AccessDesk::~AccessDesk() { m_monitor.observeAccess({}); }

void AccessDesk::follow(EventMonitor::Access access, const std::optional<Error>& why) {
    const bool isAsked = access == EventMonitor::Access::asked;
    m_overlays.setWaitsForPermission(isAsked);
    if (isAsked) return m_explains.start();
    m_explains.stop();
    if (access == EventMonitor::Access::given) return restartLastEventTime();
    // Not from within the monitor: the alert waits for its answer.
    const bool hasSeenNone = access == EventMonitor::Access::refused;
    QTimer::singleShot(0, this, [this, hasSeenNone, error = why.value_or(Error())] {
        hasSeenNone ? goOnWithout(error) : endRecording(error);
    });
}

void AccessDesk::tellWhy() {
    if (!engineState().recording || std::exchange(m_hasExplained, true)) return;
    m_notifications.post(
        "Keyrill",
        tr("To record what you type in other programs, Keyrill has to read the keyboard until the recording "
           "ends. That is why you are asked for your password.")
            .toStdString());
}

void AccessDesk::goOnWithout(const Error& why) {
    if (m_monitor.windowKeys() == nullptr) return endRecording(why);
    if (engineState().recording) emit refused(why);
}

void AccessDesk::endRecording(const Error& why) {
    const EngineState& state = engineState();
    if (!state.recording) return;
    const bool isSomethingKept = state.recordingMacro && !state.recordingMacro->isEmpty();
    stopRecording();
    m_dialogs.runAlert(alerts::recordingEnded(why, isSomethingKept));
}
