// SPDX-License-Identifier: MIT
#pragma once

/// The macro of Super+S, half a second, and A, as one test records it and the next plays it.
namespace recordedexample {

inline constexpr const char* script =
    R"(tell application "System Events"
	key code (1) using {command down}
delay 0.01
	delay 0.5
delay 0.01
	key code (0) using {}
delay 0.01
end tell
)";

/// What keyrill-script's trace prints of it.
inline constexpr const char* events =
    R"(["key",1,["command"]]
["delay",0.01]
["delay",0.5]
["delay",0.01]
["key",0,[]]
["delay",0.01]
)";

}  // namespace recordedexample
