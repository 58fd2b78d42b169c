// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Workspace.h"

/// Opens by xdg-open, which knows each desktop's way, and in a sandbox asks the desktop outside.
///
/// The other program is no child of this one: nothing is left behind when it ends, and it outlives this one.
class XdgWorkspace : public Workspace {
  public:
    Result<> openUrl(std::string_view url) override;
};
