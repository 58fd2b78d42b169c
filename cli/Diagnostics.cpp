// SPDX-License-Identifier: MIT
#include "cli/Diagnostics.h"

#include "platform/script/run/TraceServices.h"
#include "platform/script/source/TokenLength.h"

namespace {

std::string begun(const char* kind, const std::string& source, const script::Location& place,
                  const std::string& message) {
    return R"({"kind":")" + std::string(kind) + R"(","line":)" + std::to_string(place.line) +
           ",\"column\":" + std::to_string(place.column) +
           ",\"length\":" + std::to_string(script::tokenLength(source, place)) +
           ",\"message\":" + script::jsonText(message);
}

}  // namespace

std::string diagnostics(const std::string& source, const script::ScriptError* error,
                        const std::vector<script::ScriptWarning>& warnings) {
    std::string objects;
    if (error != nullptr) {
        objects = begun("error", source, error->location, error->message.text()) +
                  ",\"number\":" + std::to_string(error->number) +
                  ",\"hint\":" + script::jsonText(error->hint.text()) + "}";
    }
    for (const script::ScriptWarning& warning : warnings) {
        if (!objects.empty()) objects += ",\n";
        objects += begun("warning", source, warning.location, warning.message) + "}";
    }
    return "[" + objects + "]\n";
}
