// SPDX-License-Identifier: MIT
#include "app/program/LinuxServices.h"

#include "platform/Addresses.h"
#include "platform/linux/BusAddresses.h"
#include "platform/linux/ConfigFolders.h"
#include "platform/linux/UpdateCheck.h"

LinuxServices::LinuxServices()
    : settings(configFoldersOfProcess(), [this] { turnEnd.start(); }),
      loginItems(configFoldersOfProcess(), programOfProcess()),
      updateService(makeUpdateService({.url = std::string(addresses::updateServiceUrl)})),
      macroFiles(homeOfProcess(), userDataFolder(environmentOfProcess(), homeOfProcess())),
      notifications(busLoop, busAddresses(environmentOfProcess()).session),
      screenLock(busLoop, busAddresses(environmentOfProcess()), environmentOfProcess()("XDG_SESSION_ID")) {
    turnEnd.setSingleShot(true);
    turnEnd.setInterval(0);
    QObject::connect(&turnEnd, &QTimer::timeout, [this] { settings.endTurn(); });
}
