// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "platform/Result.h"

/// Opens things with the programs that the user prefers for them.
///
/// The text reaches the other program byte for byte, nothing in it is escaped, decoded or expanded. It is not
/// waited for; whether a program was found for it is not known. Fails where nothing can be started at all and
/// for a text with a zero byte.
class Workspace {
  public:
    virtual ~Workspace() = default;

    /// A page or a mail, as a URL with its scheme.
    virtual Result<> openUrl(std::string_view url) = 0;
};
