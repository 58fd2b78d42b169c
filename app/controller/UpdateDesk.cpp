// SPDX-License-Identifier: MIT
#include "app/controller/UpdateDesk.h"

#include "app/controller/Pages.h"
#include "app/dialogs/AlertTexts.h"
#include "platform/Addresses.h"
#include "platform/UpdateService.h"

bool UpdateDesk::askForNewer() { return m_service.isNewerThan(KEYRILL_VERSION); }

void UpdateDesk::checkNow(QWidget* panel, bool userWaits) {
    const bool available = askForNewer();
    if (!available && !userWaits) return;
    if (panel != nullptr) {
        tellOn(*panel, available);
    } else if (!available) {
        m_dialogs.runAlert(alerts::noUpdate());
    } else {
        downloadIf(m_dialogs.runAlert(alerts::updateAvailable()));
    }
}

void UpdateDesk::tellOn(QWidget& panel, bool available) {
    if (available) {
        m_dialogs.beginSheet(panel, alerts::updateAvailableSheet(),
                             [this](AlertAnswer answer) { downloadIf(answer); });
    } else {
        m_dialogs.beginSheet(panel, alerts::noUpdate(), {});
    }
}

void UpdateDesk::checkSilently() {
    hasFound = askForNewer();
    hasChecked = true;
}

// The answer of the check at start-up, given when the user turns to the program.
bool UpdateDesk::offerFound() {
    if (!hasChecked || !hasFound) return false;
    const AlertAnswer answer = m_dialogs.runAlert(alerts::updateAvailable());
    hasChecked = false;
    hasFound = false;
    downloadIf(answer);
    return answer == AlertAnswer::defaultButton;
}

void UpdateDesk::downloadIf(AlertAnswer answer) {
    if (answer == AlertAnswer::defaultButton) openPage(m_workspace, addresses::downloadPage);
}
