// SPDX-License-Identifier: MIT
#include "app/program/LinuxServices.h"

#include "platform/linux/BusAddresses.h"
#include "platform/linux/ConfigFolders.h"

LinuxServices::LinuxServices(const UpdateSource& updates)
    : stateFolder(userStateFolder(environmentOfProcess(), homeOfProcess()) + "/keyrill"),
      settings(configFoldersOfProcess(), [this] { turnEnd.start(); }),
      macroRecords(configFoldersOfProcess().user, [this] { turnEnd.start(); }),
      recordings(stateFolder),
      loginItems(configFoldersOfProcess(), programOfProcess()),
      updateService(makeUpdateService(updates)),
      macroFiles(homeOfProcess(), userDataFolder(environmentOfProcess(), homeOfProcess())),
      notifications(busLoop, busAddresses(environmentOfProcess()).session),
      screenLock(busLoop, busAddresses(environmentOfProcess()), environmentOfProcess()("XDG_SESSION_ID")) {
    turnEnd.setSingleShot(true);
    turnEnd.setInterval(0);
    QObject::connect(&turnEnd, &QTimer::timeout, [this] {
        settings.endTurn();
        macroRecords.endTurn();
    });
}
