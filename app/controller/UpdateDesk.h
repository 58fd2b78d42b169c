// SPDX-License-Identifier: MIT
#pragma once

#include "app/dialogs/Dialogs.h"

class QWidget;
class UpdateService;
class Workspace;

/// Asks whether there is a newer version, tells of one and leads to the download page.
class UpdateDesk {
  public:
    /// All outlive the desk.
    UpdateDesk(UpdateService& service, Workspace& workspace, Dialogs& dialogs)
        : m_service(service), m_workspace(workspace), m_dialogs(dialogs) {}

    /// Whether the maker has a newer version; asks each time. A question that fails is a no.
    bool askForNewer();

    /// Asks and always tells that there is a newer version; that there is none only if the user waits for
    /// an answer. In a sheet on the panel; without one (null) in an alert.
    void checkNow(QWidget* panel, bool userWaits);
    /// Asks and keeps the answer for offerFound().
    void checkSilently();
    /// Tells once of what checkSilently() found. True if that has led the user to the download page.
    bool offerFound();

    /// The end of the question whether to download.
    void downloadIf(AlertAnswer answer);

    /// Whether to ask at start-up.
    bool checksAtStartUp = false;
    /// That has been asked, and the answer not been shown.
    bool hasChecked = false;
    /// Its answer was a newer version.
    bool hasFound = false;

  private:
    void tellOn(QWidget& panel, bool available);

    UpdateService& m_service;
    Workspace& m_workspace;
    Dialogs& m_dialogs;
};
