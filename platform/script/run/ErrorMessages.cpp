// SPDX-License-Identifier: MIT
#include "platform/script/run/ErrorMessages.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace script {
namespace {

struct Row {
    int number;
    std::string_view message;
};

constexpr auto messages = std::to_array<Row>({
    {-108, "Out of memory."},
    {-128, "User canceled."},
    {-600, "Application isn’t running."},
    {-609, "Connection is invalid."},
    {-1700, "Can’t make some data into the expected type."},
    {-1701, "Some parameter is missing for a command."},
    {-1703, "Some data was of the wrong type."},
    {-1704, "Some parameter was invalid."},
    {-1708, "A message was not understood."},
    {-1712, "AppleEvent timed out."},
    {-1715, "Some required parameter was missing."},
    {-1717, "The handler is not defined."},
    {-1719, "Can’t get the element. Invalid index."},
    {-1721, "Some parameters don’t match."},
    {-1728, "Can’t get the object."},
    {-1743, "Not authorized to send Apple events."},
    {-2700, "An error has occurred."},
    {-2701, "Can’t divide by zero."},
    {-2702, "The result of a numeric operation was too large."},
    {-2706, "Stack overflow."},
    {-2753, "A variable is not defined."},
    {-2763, "No result was returned for some argument of this expression."},
    {-10000, "AppleEvent handler failed."},
    {-10006, "Can’t set the object."},
});

}  // namespace

std::string standardMessage(int number) {
    const auto* row = std::find_if(messages.begin(), messages.end(),
                                   [&](const Row& candidate) { return candidate.number == number; });
    if (row != messages.end()) return std::string(row->message);
    return "An error of type " + std::to_string(number) + " has occurred.";
}

}  // namespace script
