// SPDX-License-Identifier: MIT
#include "app/controller/HelpDesk.h"

#include <QPushButton>

#include "app/controller/BugReport.h"
#include "app/controller/Pages.h"
#include "app/controller/Stage.h"
#include "app/panels/AboutPanel.h"
#include "platform/Addresses.h"
#include "platform/Installation.h"
#include "platform/MailUrl.h"

HelpDesk::HelpDesk(Workspace& workspace, const SystemFacts& facts, Stage& stage)
    : m_workspace(workspace), m_facts(facts), m_stage(stage) {}

HelpDesk::~HelpDesk() = default;

AboutPanel& HelpDesk::builtAboutPanel() {
    if (!m_aboutPanel) {
        m_aboutPanel = std::make_unique<AboutPanel>();
        const auto connectButton = [this](QPushButton* button, void (HelpDesk::*page)()) {
            QObject::connect(button, &QPushButton::clicked, m_aboutPanel.get(),
                             [this, page] { (this->*page)(); });
        };
        connectButton(m_aboutPanel->documentationButton(), &HelpDesk::openDocumentation);
        connectButton(m_aboutPanel->productPageButton(), &HelpDesk::openProductPage);
        connectButton(m_aboutPanel->makersWebsiteButton(), &HelpDesk::openMakersWebsite);
    }
    return *m_aboutPanel;
}

void HelpDesk::showAbout() { m_stage.present(builtAboutPanel()); }

void HelpDesk::askForSupport() { sendEmail(addresses::supportAddress, "Support", ""); }

void HelpDesk::sendFeedback() { sendEmail(addresses::feedbackAddress, "Keyrill Feedback", ""); }

void HelpDesk::reportABug() { sendEmail(addresses::bugReportAddress, "Keyrill Bug", bugReportBody(m_facts)); }

void HelpDesk::openMakersWebsite() { openPage(m_workspace, addresses::makersWebsite); }

void HelpDesk::openForum() { openPage(m_workspace, addresses::forumPage); }

void HelpDesk::openProductPage() { openPage(m_workspace, addresses::productPage); }

void HelpDesk::openDocumentation() { openPage(m_workspace, documentationPage(m_language)); }

void HelpDesk::sendEmail(std::string_view address, std::string_view subject, std::string_view body) {
    openPage(m_workspace, mailUrl(address, subject, body));
}
