// SPDX-License-Identifier: MIT
#include "platform/script/commands/CommandForms.h"

#include "platform/script/commands/Command.h"

namespace script {

std::vector<std::string_view> commandForms() {
    std::vector<std::string_view> forms;
    for (const Command* command : commands()) {
        if (!command->manual.empty()) forms.push_back(command->manual.substr(0, command->manual.find('\n')));
    }
    return forms;
}

}  // namespace script
