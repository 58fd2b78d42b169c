// SPDX-License-Identifier: MIT
#include "app/controller/Pages.h"

#include "platform/Workspace.h"

void openPage(Workspace& workspace, std::string_view url) { static_cast<void>(workspace.openUrl(url)); }
