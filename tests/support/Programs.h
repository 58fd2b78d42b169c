// SPDX-License-Identifier: MIT
#pragma once

/// Where this build has what the tests start and show to it: absolute paths.
namespace programs {

extern const char* const keyrill;
extern const char* const demonstration;
extern const char* const scriptTool;
/// Does what a blind user's screen reader does.
extern const char* const assistant;
extern const char* const updateServer;
extern const char* const busStandIn;

/// A form of three fields: FOLDER TITLE.
extern const char* const gtkForm;
extern const char* const qtForm;

/// The page that teaches the script language.
extern const char* const languageReference;
/// The folder of the product's icons and pictures, as an installed one.
extern const char* const share;
/// The folder of the repository's own commands.
extern const char* const tools;
/// The file of preset hot keys that a package installs.
extern const char* const presets;

}  // namespace programs
