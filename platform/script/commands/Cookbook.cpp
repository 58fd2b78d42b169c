// SPDX-License-Identifier: MIT
#include "platform/script/commands/Cookbook.h"

namespace script {

namespace {

constexpr Recipe all[]{
    {"A greeting, line by line", "`return` and `tab` are texts, and `&` joins texts.",
     R"(tell application "System Events"
	keystroke "Dear Sir or Madam," & return & return
	keystroke "thank you for your letter."
end tell
)",
     R"(["text","Dear Sir or Madam,\r\r",[]]
["text","thank you for your letter.",[]]
)"},
    {"Today's date",
     "`current date` has the parts of the date; a month and a day with one digit get a zero in front by "
     "being cut "
     "off from behind.",
     R"(set d to current date
set m to text -2 thru -1 of ("0" & (month of d as integer))
set dd to text -2 thru -1 of ("0" & (day of d))
tell application "System Events" to keystroke (year of d as text) & "-" & m & "-" & dd
)",
     ""},
    {"A form of three fields",
     "The question is asked before anything is typed; Cancel ends the macro there. Tab goes to the next "
     "field, "
     "whose text\n"
     "is typed over in most forms, and Return in the last one is OK: one more Tab would lead to a "
     "button, perhaps "
     "to Cancel.\n"
     "The date is written 1/31/26; see “Today's date” for other ways.",
     R"(set who to text returned of (display dialog "Your name?" default answer "Ann")
set today to short date string of (current date)
tell application "System Events"
	keystroke who & tab
	delay 0.1
	keystroke today & tab
	delay 0.1
	keystroke "Main Street 1" & return
end tell
)",
     ""},
    {"A field that holds something already", "All of it is selected, and typed over.",
     R"(tell application "System Events"
	keystroke "a" using control down
	keystroke "12345"
end tell
)",
     R"(["text","a",["control"]]
["text","12345",[]]
)"},
    {"The same key many times", "A pause gives the program time to follow.",
     R"(tell application "System Events"
	repeat 3 times
		key code 125 -- Down
		delay 0.2
	end repeat
end tell
)",
     R"(["key",125,[]]
["delay",0.2]
["key",125,[]]
["delay",0.2]
["key",125,[]]
["delay",0.2]
)"},
    {"Only into the right window", "Nothing is typed into a window that was not meant.",
     R"(tell application "System Events"
	if not (exists process "Firefox") then error "Start Firefox first."
	set frontmost of process "Firefox" to true
	keystroke "l" using control down
	keystroke "orlen.example" & return
end tell
)",
     R"(["text","l",["control"]]
["text","orlen.example\r",[]]
)"},
    {"Quotes around what is selected", "The program needs a moment to fill the clipboard after Ctrl+C.",
     R"(set the clipboard to ""
tell application "System Events"
	keystroke "c" using control down
	delay 0.2
	keystroke quote & (the clipboard) & quote
end tell
)",
     R"(["clipboard",""]
["text","c",["control"]]
["delay",0.2]
["text","\"\"",[]]
)"},
    {"One of several texts", "Where the cancel button was pressed the answer is `false`.",
     R"(set chosen to choose from list {"Yes, gladly.", "No, thank you."} with prompt "Which answer?"
if chosen is not false then
	tell application "System Events" to keystroke item 1 of chosen
end if
)",
     R"(["list","Which answer?",["Yes, gladly.","No, thank you."]]
["text","Yes, gladly.",[]]
)"},
    {"Numbers with leading zeros", "Text is cut from behind; `repeat with` counts.",
     R"(tell application "System Events"
	repeat with i from 9 to 10
		keystroke "Page " & text -3 thru -1 of ("00" & i) & return
	end repeat
end tell
)",
     R"(["text","Page 009\r",[]]
["text","Page 010\r",[]]
)"},
    {"A handler of one's own", "Inside `tell` it is called with `my`.",
     R"(on field(content)
	tell application "System Events" to keystroke content & tab
end field

field("Ann")
field("Bob")
)",
     R"(["text","Ann\t",[]]
["text","Bob\t",[]]
)"},
    {"What to do when something is wrong",
     "Without `try` the macro ends there, and a notification tells why.",
     R"(try
	set n to "many" as integer
on error message number n
	display alert "This is no number." message message
end try
)",
     R"(["alert","This is no number.",["OK"]]
)"}};

}  // namespace

std::span<const Recipe> recipes() { return all; }

}  // namespace script
