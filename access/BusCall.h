// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

#include <functional>
#include <string>

namespace keyaccess {

/// A method of an object on the bus, and the type of its answer.
struct Method {
    const char* name;
    std::string path;
    const char* interface;
    const char* member;
    const char* answerType;
};

/// Calls it; `answered` gets the answer, or null where the call fails, however long it takes. Parameters that
/// are floating are taken.
void callMethod(GDBusConnection* bus, const Method& method, GVariant* parameters,
                std::function<void(GVariant*)> answered);

}  // namespace keyaccess
