// SPDX-License-Identifier: MIT
#include "app/program/LinuxServices.h"

#include "platform/linux/ConfigFolders.h"

LinuxServices::LinuxServices()
    : settings(configFoldersOfProcess(), [this] { turnEnd.start(); }),
      loginItems(configFoldersOfProcess(), programOfProcess()),
      macroFiles(homeOfProcess(), userDataFolder(environmentOfProcess(), homeOfProcess())) {
    turnEnd.setSingleShot(true);
    turnEnd.setInterval(0);
    QObject::connect(&turnEnd, &QTimer::timeout, [this] { settings.endTurn(); });
}
