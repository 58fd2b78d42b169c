// SPDX-License-Identifier: MIT
#include "platform/script/source/ScriptError.h"

#include <algorithm>
#include <array>
#include <string>

namespace script {
namespace {

struct Row {
    int number;
    const char* english;
};

constexpr auto messages = std::to_array<Row>({
    {errornumber::outOfMemory, englishOf("ScriptErrors", "Out of memory.")},
    {errornumber::userCancelled, englishOf("ScriptErrors", "User canceled.")},
    {-600, englishOf("ScriptErrors", "Application isn’t running.")},
    {-609, englishOf("ScriptErrors", "Connection is invalid.")},
    {errornumber::cannotCoerce, englishOf("ScriptErrors", "Can’t make some data into the expected type.")},
    {errornumber::missingParameter, englishOf("ScriptErrors", "Some parameter is missing for a command.")},
    {-1703, englishOf("ScriptErrors", "Some data was of the wrong type.")},
    {-1704, englishOf("ScriptErrors", "Some parameter was invalid.")},
    {errornumber::notUnderstood, englishOf("ScriptErrors", "A message was not understood.")},
    {errornumber::timedOut, englishOf("ScriptErrors", "AppleEvent timed out.")},
    {-1715, englishOf("ScriptErrors", "Some required parameter was missing.")},
    {-1717, englishOf("ScriptErrors", "The handler is not defined.")},
    {-1719, englishOf("ScriptErrors", "Can’t get the element. Invalid index.")},
    {errornumber::wrongParameters, englishOf("ScriptErrors", "Some parameters don’t match.")},
    {errornumber::noSuchObject, englishOf("ScriptErrors", "Can’t get the object.")},
    {-1743, englishOf("ScriptErrors", "Not authorized to send Apple events.")},
    {errornumber::byScript, englishOf("ScriptErrors", "An error has occurred.")},
    {errornumber::divisionByZero, englishOf("ScriptErrors", "Can’t divide by zero.")},
    {errornumber::tooLarge, englishOf("ScriptErrors", "The result of a numeric operation was too large.")},
    {errornumber::stackOverflow, englishOf("ScriptErrors", "Stack overflow.")},
    {errornumber::undefinedVariable, englishOf("ScriptErrors", "A variable is not defined.")},
    {errornumber::noResult,
     englishOf("ScriptErrors", "No result was returned for some argument of this expression.")},
    {errornumber::handlerFailed, englishOf("ScriptErrors", "AppleEvent handler failed.")},
    {errornumber::cannotSet, englishOf("ScriptErrors", "Can’t set the object.")},
});

}  // namespace

Sentence standardMessage(int number) {
    const auto* row = std::find_if(messages.begin(), messages.end(),
                                   [&](const Row& candidate) { return candidate.number == number; });
    if (row != messages.end()) return sentence("ScriptErrors", row->english);
    return sentence("ScriptErrors", "An error of type %1 has occurred.").arg(std::to_string(number));
}

}  // namespace script
