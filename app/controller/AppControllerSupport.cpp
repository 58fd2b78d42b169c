// SPDX-License-Identifier: MIT
#include <QPushButton>

#include "app/controller/AppController.h"
#include "app/controller/BugReport.h"
#include "app/dialogs/AlertTexts.h"
#include "app/panels/AboutPanel.h"
#include "app/panels/PreferencesPanel.h"
#include "app/widgets/IsShown.h"
#include "platform/Addresses.h"
#include "platform/MailUrl.h"
#include "platform/Services.h"
#include "platform/SystemFacts.h"
#include "platform/UpdateService.h"
#include "platform/Workspace.h"

AboutPanel& AppController::builtAboutPanel() {
    if (!m_aboutPanel) {
        m_aboutPanel = std::make_unique<AboutPanel>();
        const auto connectButton = [this](QPushButton* button, void (AppController::*page)(QObject*)) {
            connect(button, &QPushButton::clicked, this, [this, button, page] { (this->*page)(button); });
        };
        connectButton(m_aboutPanel->documentationButton(), &AppController::openDocumentation);
        connectButton(m_aboutPanel->productPageButton(), &AppController::openKeyrillWebsite);
        connectButton(m_aboutPanel->makersWebsiteButton(), &AppController::openOrlenWebsite);
    }
    return *m_aboutPanel;
}

void AppController::aboutKeyrill(QObject* /*sender*/) { presentPanel(builtAboutPanel()); }

void AppController::getSupport(QObject* /*sender*/) { sendEmail(addresses::supportAddress, "Support", ""); }

void AppController::sendFeedback(QObject* /*sender*/) {
    sendEmail(addresses::feedbackAddress, "Keyrill Feedback", "");
}

void AppController::reportABug(QObject* /*sender*/) {
    sendEmail(addresses::bugReportAddress, "Keyrill Bug", bugReportBody(m_services.systemFacts));
}

void AppController::openOrlenWebsite(QObject* /*sender*/) { openPage(addresses::makersWebsite); }

void AppController::openForum(QObject* /*sender*/) { openPage(addresses::forumPage); }

void AppController::openKeyrillWebsite(QObject* /*sender*/) { openPage(addresses::productPage); }

void AppController::openDocumentation(QObject* /*sender*/) { openPage(addresses::documentationPage); }

// Where no program takes the page or the mail, nobody is told.
void AppController::openPage(std::string_view url) { static_cast<void>(m_services.workspace.openUrl(url)); }

void AppController::sendEmail(std::string_view address, std::string_view subject, std::string_view body) {
    openPage(mailUrl(address, subject, body));
}

std::string AppController::systemVersionString() const { return m_services.systemFacts.systemVersion(); }

std::string AppController::machineType() const { return ::machineType(m_services.systemFacts); }

std::int32_t AppController::processorClockSpeed() const { return m_services.systemFacts.processorClock(); }

std::uint32_t AppController::countProcessors() const { return m_services.systemFacts.processors(); }

bool AppController::doCheckForUpdate() { return m_services.updateService.isNewerThan(KEYRILL_VERSION); }

void AppController::checkForUpdates(QObject* sender) {
    const bool available = doCheckForUpdate();
    const bool wantsAnswer =
        sender != nullptr && m_preferencesWindow && sender == m_preferencesWindow->checkForUpdatesNowButton();
    if (!available && !wantsAnswer) return;
    if (isShown(m_preferencesWindow.get())) {
        tellUpdateOnPreferences(available);
    } else if (!available) {
        m_dialogs.runAlert(alerts::noUpdate());
    } else if (m_dialogs.runAlert(alerts::updateAvailable()) == AlertAnswer::defaultButton) {
        openPage(addresses::downloadPage);
    }
}

void AppController::tellUpdateOnPreferences(bool available) {
    if (available) {
        m_dialogs.beginSheet(*m_preferencesWindow, alerts::updateAvailableSheet(),
                             [this](AlertAnswer answer) { updateCheckSheetDidEnd(answer); });
    } else {
        m_dialogs.beginSheet(*m_preferencesWindow, alerts::noUpdate(), {});
    }
}

void AppController::updateCheckSheetDidEnd(AlertAnswer answer) {
    if (answer == AlertAnswer::defaultButton) openPage(addresses::downloadPage);
}

void AppController::backgroundCheckForUpdates() {
    const bool available = doCheckForUpdate();
    checkForUpdateCompleted = true;
    updateAvailable = available;
    activateStatusMenu();
}
