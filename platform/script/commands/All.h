// SPDX-License-Identifier: MIT
#pragma once

#include "platform/script/commands/Command.h"

/// One function for each command, in the file of its name.
namespace script {

const Command& keyCodeCommand();
const Command& keystrokeCommand();
const Command& keyDownCommand();
const Command& keyUpCommand();
const Command& delayCommand();
const Command& beepCommand();
const Command& activateCommand();
const Command& existsCommand();
const Command& clipboardCommand();
const Command& setClipboardCommand();
const Command& displayDialogCommand();
const Command& displayAlertCommand();
const Command& chooseFromListCommand();
const Command& displayNotificationCommand();
const Command& countCommand();
const Command& numberOfCommand();
const Command& offsetCommand();
const Command& roundCommand();
const Command& randomNumberCommand();
const Command& currentDateCommand();
const Command& asciiCharacterCommand();
const Command& asciiNumberCommand();
const Command& logCommand();

}  // namespace script
