// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
#include <memory>
#include <string>

#include "platform/UpdateService.h"
#include "platform/linux/AutostartEntry.h"
#include "platform/linux/BusLoop.h"
#include "platform/linux/BusNotifications.h"
#include "platform/linux/BusScreenLock.h"
#include "platform/linux/KeyFileRecords.h"
#include "platform/linux/KeyFileSettings.h"
#include "platform/linux/LocalFolderFollower.h"
#include "platform/linux/LocalMacroFiles.h"
#include "platform/linux/LocalRecordings.h"
#include "platform/linux/MachineFacts.h"
#include "platform/linux/UpdateCheck.h"
#include "platform/linux/XdgWorkspace.h"

/// The services that are the same in every session, joined with the event loop. Can be made before the loop.
struct LinuxServices {
    explicit LinuxServices(const UpdateSource& updates);
    LinuxServices(const LinuxServices&) = delete;
    LinuxServices& operator=(const LinuxServices&) = delete;

    QTimer turnEnd;
    /// Of the program, in the user's.
    const std::string stateFolder;
    KeyFileSettings settings;
    KeyFileRecords macroRecords;
    LocalRecordings recordings;
    AutostartEntry loginItems;
    XdgWorkspace workspace;
    MachineFacts systemFacts;
    std::unique_ptr<UpdateService> updateService;
    LocalMacroFiles macroFiles;
    LocalFolderFollower folderFollower;
    BusLoop busLoop;
    BusNotifications notifications;
    BusScreenLock screenLock;
};
