// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

class AboutPanel;
class Stage;
class SystemFacts;
class Workspace;

/// Where the user finds more: the pages, the mails to the maker and the panel about the program.
class HelpDesk {
  public:
    /// All outlive the desk.
    HelpDesk(Workspace& workspace, const SystemFacts& facts, Stage& stage);
    ~HelpDesk();

    /// The documentation is opened in that language ("de") where it is translated; without it in English.
    void setLanguage(std::string language) { m_language = std::move(language); }

    void showAbout();
    void askForSupport();
    void sendFeedback();
    void reportABug();
    void openMakersWebsite();
    void openForum();
    void openProductPage();
    void openDocumentation();
    void sendEmail(std::string_view address, std::string_view subject, std::string_view body);

    /// Null until first shown.
    AboutPanel* aboutPanel() const { return m_aboutPanel.get(); }

  private:
    AboutPanel& builtAboutPanel();

    Workspace& m_workspace;
    const SystemFacts& m_facts;
    Stage& m_stage;
    std::string m_language;
    std::unique_ptr<AboutPanel> m_aboutPanel;
};
