// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "platform/UpdateService.h"

/// Where to ask for the newest version, and whom to believe.
struct UpdateSource {
    /// HTTPS. Answers with the newest version as text, 64 KiB at most, which may have blanks around it.
    std::string url;
    /// A file with the certificates of the authorities that count; the system's if empty.
    std::string authorities = {};
};

/// The service that asks there: connects within 2 seconds and has the answer within 4, whatever hangs.
/// Follows redirects to HTTPS only, sends neither cookies nor anything about the machine. In a build without
/// the update check it never finds anything and asks nobody.
std::unique_ptr<UpdateService> makeUpdateService(const UpdateSource& source);
