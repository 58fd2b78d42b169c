// SPDX-License-Identifier: MIT
#include "support/Programs.h"

namespace programs {

const char* const keyrill = KEYRILL_PRODUCT;
const char* const demonstration = KEYRILL_DEMONSTRATION;
const char* const scriptTool = KEYRILL_SCRIPT_TOOL;
const char* const assistant = KEYRILL_ASSISTANT;
const char* const updateServer = KEYRILL_UPDATE_SERVER;
const char* const busStandIn = KEYRILL_BUS_STANDIN;
const char* const gtkForm = KEYRILL_GTK_FORM;
const char* const qtForm = KEYRILL_QT_FORM;
const char* const languageReference = KEYRILL_LANGUAGE_REFERENCE;
const char* const share = KEYRILL_SHARE;
const char* const tools = KEYRILL_TOOLS;
const char* const presets = KEYRILL_PRESETS;

}  // namespace programs
