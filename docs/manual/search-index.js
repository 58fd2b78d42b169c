// SPDX-License-Identifier: MIT
// Written by tools/manual; not to be edited.
const manualIndex = [
{
"url": "first.html",
"page": "Your first macro in a minute",
"title": "Your first macro in a minute",
"words": "begin, start, tutorial, icon, tray, quick start",
"text": [
"Three hot keys are all that you need. Click into a text field, press Ctrl+Super+R and type ",
"a few words. Super is the key with the desktop's logo. An overlay at the upper right of ",
"the screen shows the keys. Press Ctrl+Super+S. The overlay goes; the macro is ready. Press ",
"Ctrl+Super+P and let go. The words are typed again. Nothing happens? Troubles by symptom ",
"tells why. In a Wayland session it depends on the desktop what can be recorded: see ",
"Wayland, desktop by desktop."
]
},
{
"url": "first.html#next",
"page": "Your first macro in a minute",
"title": "What next",
"text": [
"Play it a hundred times: how often. Keep it, give it a name and a hot key of its own: the ",
"window of the macros. Have your pauses kept: pauses. Choose other hot keys: choosing hot ",
"keys. Write a macro that asks, counts and decides: macros as scripts, and the cookbook."
]
},
{
"url": "first.html#menu",
"page": "Your first macro in a minute",
"title": "The icon and its menu",
"text": [
"Keyrill lives in the tray. Its icon shows three dots while the program gets ready, then a ",
"key with a K. The menu The menu entry what it does Start Recording, Stop Recording begins ",
"or ends a macro Save Pause while recording: keeps the time since the last key as a pause ",
"Play, Play Multiple Times... types the current macro, once or as often as you say History ",
"what has been recorded since Keyrill started, or before if you want it kept, the newest ",
"first; choosing one plays it and makes it the current macro Save Macro..., Load Macro... ",
"keeps the current macro in a file, and gets one back Macros... all macros that you keep, ",
"to find, read, change and play Preferences... hot keys, pauses, start at log-in, updates ",
"Help this manual (Documentation), the maker's pages, how to reach us, and What Works Here ",
"Quit ends Keyrill Play, Play Multiple Times and Save Macro appear when a first recording ",
"has been stopped. On a desktop without a tray, a small window with the same menu appears ",
"after three seconds. It never takes the keys from the window that you type into. Starting ",
"Keyrill a second time shows that window too."
]
},
{
"url": "hot-keys.html",
"page": "Hot keys",
"title": "Hot keys",
"words": "hotkey, hotkeys, shortcut, shortcuts, combination, keybinding, bind, trigger",
"text": [
"A hot key works in every program, as far as the session lets it. hot key what it does ",
"Ctrl+Super+R starts a recording, or ends it Ctrl+Super+S ends the recording; while a macro ",
"is played, ends the playback Ctrl+Super+P plays the current macro when all keys have been ",
"let go Ctrl+Super+M asks how many times to play Escape, held for a third of a second ends ",
"the playback Hot keys are never part of a recording. While the preferences or a question ",
"of Keyrill's are open they are off; only the one for stop ends a macro that asks."
]
},
{
"url": "hot-keys.html#choose",
"page": "Hot keys",
"title": "Choosing hot keys",
"text": [
"Click a field of the preferences, or press Space on it, then press the new combination. A ",
"letter or digit needs Ctrl, Alt or Super. Backspace clears the field; a cleared ",
"combination goes on working until Keyrill is started again. A combination that another of ",
"the four has is taken from it. Hot keys are keys by their place on the keyboard, as in a ",
"recording: the one that was M on a US keyboard is the comma of a French one, and the ",
"preferences always show what is printed there in the layout of now. In GNOME's Wayland ",
"sessions, from version 48 on, the combinations are chosen in GNOME's own settings: see ",
"GNOME."
]
},
{
"url": "hot-keys.html#macros",
"page": "Hot keys",
"title": "A hot key for a macro",
"text": [
"Each macro of the macro folder can have one: open Macros... in the menu, choose the macro, ",
"click the field Hot key: below it, or press Space in it, and press the combination. It is ",
"kept at once. Beside it stand how often the hot key plays the macro, and how fast. A hot ",
"key belongs to a macro on your machine only: it is never in the macro's file, so that a ",
"macro of somebody else takes none."
]
},
{
"url": "hot-keys.html#taken",
"page": "Hot keys",
"title": "A combination that is taken",
"text": [
"The preferences say so beside the field, the window of the macros does below the macro, ",
"and the icon's tooltip does. They name who has it, as far as that can be told: Already ",
"used by macro \"Greeting\". Choose another combination, or free it there. A hot key that ",
"another program holds is taken as soon as that program gives it free. A combination that ",
"you give to a shortcut of the preferences is taken from the macro that had it. keyrill ",
"--check in a terminal, and What Works Here in the menu's Help, tell of each hot key ",
"whether somebody else has it."
]
},
{
"url": "hot-keys.html#actions",
"page": "Hot keys",
"title": "From other programs and the desktop's own keys",
"text": [
"keyrill --action=record, stop, play, multiple and save-pause do what the lines of the menu ",
"do. Give such a command to a key of your window manager's, to a button or to a script; the ",
"desktop's menu offers them too, beside the program's name. Keys that you still hold are ",
"waited for. record, play, multiple and macros, which shows the window of the macros, start ",
"Keyrill if need be. What cannot be done now is said on standard error, and the exit status ",
"is 2. While a macro plays only stop is taken. They need the session bus, which every ",
"desktop has; nothing there tells what you have recorded."
]
},
{
"url": "hot-keys.html#play-by-name",
"page": "Hot keys",
"title": "Playing a macro by its name",
"text": [
"keyrill --play Greeting plays the macro of that name from the macro folder, with the times ",
"and the speed that belong to it, --times 3 --speed 2 three times and twice as fast; --play ",
"mail/Greeting that of the group mail, --play ./macro.keyrill a file, and --play alone what ",
"Play plays, which stays what it was. keyrill --list prints all names, keyrill --show ",
"Greeting shows the macro in its window. bash, zsh and fish complete the names. The exit ",
"status is 0 if it was done, 1 if it could not be, 2 if the command line makes no sense; ",
"standard error says why. So a macro gets a key of your window manager's, here of openbox: ",
"<keybind key=\"C-W-F5\"><action name=\"Execute\"> <command>keyrill --play Greeting</command> ",
"</action></keybind> Other programs ask over D-Bus: man keyrill tells how."
]
},
{
"url": "recording.html",
"page": "Recording",
"title": "Recording",
"words": "record, capture, pause, delay, modifier, overlay, mouse",
"text": [
"Press Ctrl+Super+R or choose Start Recording in the menu, type, and end it with ",
"Ctrl+Super+S."
]
},
{
"url": "recording.html#what",
"page": "Recording",
"title": "What is recorded",
"text": [
"Everything that you press goes into the macro: letters, digits, arrows, function keys, and ",
"combinations with Ctrl, Alt, Super and Shift. A key that is held counts as often as it ",
"repeats. Mouse clicks are not recorded. Keyrill's own hot keys are not part of the macro. ",
"Keys are kept by their place on the keyboard, not by the character that they type: ",
"recorded on an English keyboard layout and played on a French one, a macro presses the ",
"same keys, which type other letters there. For text that must arrive on any layout write ",
"keystroke \"...\" into the macro's script, or use Convert to Text. Keyboards and layouts has ",
"more. A recording without any key is dropped. Each other one becomes the current macro, ",
"which Play plays, and the first line of History."
]
},
{
"url": "recording.html#pauses",
"page": "Recording",
"title": "Pauses",
"text": [
"How long you wait between two keys is not kept, so that a macro plays at full speed. Where ",
"the wait matters, for instance while a page loads, choose Save Pause in the menu: the time ",
"since the last key becomes part of the macro. In the preferences you can have all pauses ",
"kept: with Record pauses, As typed a macro takes as long as its typing did, key by key; ",
"with At most a pause that is longer counts as that long. What passes before the first key ",
"and after the last one is not part of the macro. Each pause is shown in the overlay and is ",
"a line delay of the script."
]
},
{
"url": "recording.html#modifiers",
"page": "Recording",
"title": "Modifier keys",
"text": [
"Modifier and lock keys count for the keys that you press while they are held or on; ",
"pressed alone they are not kept, so that a tap of Super that opens a launcher is missing ",
"from the macro. With Record modifier keys on their own in the preferences such taps are ",
"kept as keys, where nothing else is pressed with them and they last no longer than half a ",
"second. A modifier that you hold over several keys is then held over them in the macro, ",
"too, by key down and key up: Alt over Tab, Tab goes to the third window also where the ",
"macro waits between them. Lock keys, and AltGr, stay part of the keys that they change."
]
},
{
"url": "recording.html#overlay",
"page": "Recording",
"title": "The overlay",
"text": [
"The overlay while a macro is recorded The overlay while a macro is recorded The overlay ",
"shows the keys as they come. It stays above full-screen windows, never takes the keys, and ",
"clicks go through it. In Wayland sessions it depends on the desktop what it lies above."
]
},
{
"url": "recording.html#not-recorded",
"page": "Recording",
"title": "When nothing is recorded",
"text": [
"While another program has the keyboard to itself (a screen locker, a password question, ",
"the window of another computer) nothing is recorded and the overlay says Not recorded: ",
"keyboard held. Menus, the hot keys of other programs and whoever has the keyboard for less ",
"than two seconds are recorded as ever; a locker is known by what it holds: the keyboard ",
"for longer than the keys that began it, with the mouse or the whole screen, and without ",
"the window of a menu. Nor is anything recorded while the screen is locked, or of what you ",
"type into Keyrill's own menu and questions. Ctrl+Alt+F2 and its like, which show another ",
"console, are no part of a recording either: playing it would leave the session."
]
},
{
"url": "playing.html",
"page": "Playing",
"title": "Playing",
"words": "play, replay, repeat, loop, times, stop, cancel, abort, escape, speed, endless",
"text": [
"Press Ctrl+Super+P and let go, or choose Play in the menu. To stop, hold Escape."
]
},
{
"url": "playing.html#where",
"page": "Playing",
"title": "Where the keys go",
"text": [
"The keys go to the window that has the focus; while you record, they become part of the ",
"recording. When you play from the menu or from the prompt, that is the window which you ",
"typed into before."
]
},
{
"url": "playing.html#times",
"page": "Playing",
"title": "How often",
"text": [
"Ctrl+Super+M, or Play Multiple Times... in the menu, asks. In the prompt type a number and ",
"press Return; Escape closes it. Anything that is not a positive number plays nothing. The ",
"prompt that asks how many times The prompt that asks how many times A macro that you keep ",
"has a number of times of its own, or is played until you stop it (Until stopped): hot key, ",
"times, speed. keyrill --play Greeting --times until-stopped does the same (playing a macro ",
"by its name)."
]
},
{
"url": "playing.html#stop",
"page": "Playing",
"title": "To stop a playback",
"text": [
"Hold Escape for a third of a second, or press the stop hot key. Keys that the macro holds ",
"down are let go, whatever happens. A stop is a stop: a play that you asked for before it ",
"and that has not begun is not carried out, and a macro ends wherever it is, also while it ",
"asks a question. When the screen is locked, a macro that plays ends. While a macro plays ",
"Keyrill's menu does not open, and clicks into its windows do nothing, also afterwards. ",
"keyrill --action=stop stops, too. Other hot keys that are pressed meanwhile act when the ",
"macro has ended, unless you have stopped it. In a Wayland session where Keyrill may not ",
"read the keyboard the stop combination alone ends a play: see hands and Escape."
]
},
{
"url": "playing.html#hands",
"page": "Playing",
"title": "Your own keys meanwhile",
"text": [
"While you hold Ctrl, Alt, Super or Shift, playback waits, so that your own combinations do ",
"what they always do; it goes on when all of them are up. Caps Lock and Num Lock do not ",
"change what is typed: Caps Lock is put out while a macro plays and put back afterwards, ",
"Num Lock stays as it is and is put on for the digits of the keypad alone. A lock that you ",
"tap meanwhile is yours after the macro. When the macro itself taps Caps Lock, its key ",
"codes follow it; text arrives as it is written."
]
},
{
"url": "playing.html#speed",
"page": "Playing",
"title": "How fast",
"text": [
"A macro plays at full speed, but for its pauses. The speed of a macro that you keep, from ",
"0.25 to 4, divides the pauses: with 2 they take half the time. --speed of keyrill --play ",
"and keyrill-script run means the same. With Ctrl, Alt or Super the modifiers come up 30 ms ",
"after the key, so that window managers see them do so; strokes with the same ones that ",
"follow closely are one hold, as Alt over Tab, Tab is."
]
},
{
"url": "playing.html#failed",
"page": "Playing",
"title": "When a macro cannot be played",
"text": [
"When a macro cannot be played, or not to its end, a notification says in which line and ",
"why: The macro cannot be played where its script is wrong, The macro was not played to its ",
"end where something went wrong on the way. Where no program shows notifications, the tray ",
"icon tells of it until a macro is played with which all is well."
]
},
{
"url": "macros.html",
"page": "Files and the macros that you keep",
"title": "Files and the macros that you keep",
"words": "library, save, load, open, folder, group, rename, delete, trash, undo, history, edit, convert",
"text": [
"A macro is a text file with the ending .keyrill. Those in the macro folder have a window ",
"of their own."
]
},
{
"url": "macros.html#files",
"page": "Files and the macros that you keep",
"title": "Macro files",
"text": [
"Save Macro... keeps the current macro as a text file with the ending .keyrill. Load ",
"Macro... makes a file the current macro; so does opening it in the file manager, or ",
"keyrill FILE. A file is never played just because it was opened: press the play hot key. ",
"Files are offered in ~/.local/share/keyrill, or in ~/Library/Application Support/Keyrill ",
"if you have the folder above it. A macro is saved whole or not at all: if the disk is full ",
"or the folder is read-only you are told, and the old file stays. Saved text must be plain ",
"ASCII; a message names the line and the character that is not. A macro file stays good: ",
"what one version of Keyrill plays, all later ones play in the same way. Files of each ",
"version are kept and tried with every change of the program."
]
},
{
"url": "macros.html#window",
"page": "Files and the macros that you keep",
"title": "The window of the macros",
"text": [
"Macros... in the menu opens a window with all macros of the macro folder; folders in it ",
"are groups. What other programs put, change, rename or remove there is seen at once; what ",
"you have not saved stays with a macro that is renamed. The window of the macros A macro ",
"under Keys Finding. Type into Search (Ctrl+F): macros are found by their names and by what ",
"they type."
]
},
{
"url": "macros.html#keys",
"page": "Files and the macros that you keep",
"title": "Changing keys",
"text": [
"Keys shows what a macro does, step by step: text that is typed, combinations, pauses, and ",
"keys that are pressed several times in a row. Steps of a recorded macro can be selected, ",
"removed (Delete), moved (Alt with the arrows), repeated (Ctrl+D) and changed (F2 or a ",
"double click: the text, the seconds of a pause, how often a key is pressed); Record Keys ",
"records more behind the selected one. Lines of comment may stand between the steps, and ",
"stay. Of any other script Keys shows what it would press."
]
},
{
"url": "macros.html#convert",
"page": "Files and the macros that you keep",
"title": "Keys to text, and back",
"text": [
"Recorded keys play as keys: “Hello, World” of a US keyboard is “Hello; Zorld” on a French ",
"one. Convert to Text turns the selected keys into text, which is the same under every ",
"layout; Convert to Keys turns it back. Accents that you have typed with a dead key stay ",
"keys."
]
},
{
"url": "macros.html#script",
"page": "Files and the macros that you keep",
"title": "Changing the script",
"text": [
"Script shows the same macro as text (Macros as scripts), with what is wrong in a line ",
"below it. Ctrl+Space offers the words that fit."
]
},
{
"url": "macros.html#settings",
"page": "Files and the macros that you keep",
"title": "Hot key, times, speed",
"text": [
"Below the macro stand the hot key that plays it in every program, how often that plays it, ",
"and how fast: pauses are divided by the speed, from 0.25 to 4. Click the field, or press ",
"Space in it, and press the combination that you want. What you change is kept at once. If ",
"a shortcut of the preferences, another macro or another program has the combination, a ",
"line below says so; a combination that you give to a shortcut of the preferences is taken ",
"from the macro."
]
},
{
"url": "macros.html#keep",
"page": "Files and the macros that you keep",
"title": "Keeping a recording",
"text": [
"Keep Recording... lists your history, the latest first, with the time of each. What you ",
"choose becomes a macro, and you type its name. Forget there takes one of them out of the ",
"history, or all, for good; Play has the latest macro until you record or choose another, ",
"or quit."
]
},
{
"url": "macros.html#order",
"page": "Files and the macros that you keep",
"title": "Playing, renaming, deleting",
"text": [
"Play counts to three, gives way to the window that you were in before and plays into it, ",
"so often and so fast; Escape ends the count, and Escape held for a moment the play. Rename ",
"(F2), Duplicate and Delete do so with the file; what is deleted lies in the trash, and ",
"Undo (Ctrl+Z) brings it back with its hot key, times and speed, which another file of that ",
"name does not get. A point behind a name says that something is not saved (Ctrl+S): it ",
"stays as it is while you look at other macros, and outlives a log-out, in a file for you ",
"alone in ~/.local/state/keyrill/unsaved."
]
},
{
"url": "preferences.html",
"page": "Preferences",
"title": "Preferences",
"words": "settings, options, configuration, autostart, login, log-in, updates, pauses, xtest, keyrill.conf",
"text": [
"Preferences... in the menu opens them. Hot keys are kept at once, all else at the latest ",
"when you close them. The preferences The preferences"
]
},
{
"url": "preferences.html#shortcuts",
"page": "Preferences",
"title": "Shortcuts",
"text": [
"The four hot keys: choosing hot keys tells how to set them. While the preferences are open ",
"the hot keys are off."
]
},
{
"url": "preferences.html#recording",
"page": "Preferences",
"title": "What is recorded",
"text": [
"Record pauses says which pauses between keys become part of a recording by themselves: ",
"none (Never), all as long as they were (As typed), or all but none longer than so many ",
"seconds, from 0.1 to 60 (At most). Record modifier keys on their own keeps taps of Ctrl, ",
"Alt, Super and Shift, and holds of them over several keys; see Recording."
]
},
{
"url": "preferences.html#history",
"page": "Preferences",
"title": "The history",
"text": [
"Keep the history for the next start keeps your last 50 recordings, each as a macro file ",
"that nobody but you can read, in ~/.local/state/keyrill/history. Whatever you typed in a ",
"recording is in them. When you untick it and close the preferences they are deleted. ",
"Macros... > Keep Recording... > Forget deletes one of them, or all."
]
},
{
"url": "preferences.html#log-in",
"page": "Preferences",
"title": "Start at log-in",
"text": [
"Start Keyrill when I log in puts Keyrill among the programs that your desktop starts, in ",
"~/.config/autostart/example.orlen.Keyrill.desktop."
]
},
{
"url": "preferences.html#updates",
"page": "Preferences",
"title": "Updates",
"text": [
"Check for updates when Keyrill starts asks at each start whether there is a newer version, ",
"and tells you at the next recording; Check Now asks at once. Nothing is downloaded, and ",
"nothing about you or your machine is sent. The Debian package has neither: there the ",
"distribution tells of newer versions."
]
},
{
"url": "preferences.html#configuration",
"page": "Preferences",
"title": "Configuration",
"text": [
"Keyrill works in X11 sessions. It needs an X server with three extensions, which every ",
"current one has: XInput 2.2 to see keys, XTEST to press them, and XKB to know what they ",
"mean. If one is missing, Keyrill says so and ends. Servers inside a window, viewers of ",
"remote desktops and kiosk set-ups sometimes switch XTEST off; switch it on there. What ",
"works in Wayland sessions depends on the desktop: Wayland, desktop by desktop. Where ",
"Keyrill sees and reaches only the windows of X11 programs, log in to an X11 session ",
"(\"Xorg\") to use it everywhere. Settings are in ~/.config/keyrill/keyrill.conf. What is not ",
"set there comes from /etc/xdg/keyrill/keyrill.conf, where an administrator can choose ",
"other presets. Macros in the macro folder can have hot keys of their own, a number of ",
"times and a speed: what belongs to a macro is in ~/.config/keyrill/macros.conf, under the ",
"name of its file, and goes with the file when that is renamed. It is never in the macro ",
"itself, so that a macro of somebody else takes no hot key."
]
},
{
"url": "scripts.html",
"page": "Macros as scripts",
"title": "Macros as scripts",
"words": "script, applescript, language, code, program, write, keyrill-script, check, trace, editor",
"text": [
"A macro is a script in Keyrill script, compatible with AppleScript's keyboard commands. ",
"You can read it, change it and write one yourself: tell application \"System Events\" key ",
"code (1) using {command down} delay 0.5 keystroke \"hello\" repeat 3 times key code 48 end ",
"repeat end tell When a macro cannot be played, or not to its end, a notification says in ",
"which line and why. A script may have up to 16 MiB."
]
},
{
"url": "scripts.html#first-script",
"page": "Macros as scripts",
"title": "The first script, in five steps",
"text": [
"Open an editor and write these three lines: tell application \"System Events\" keystroke ",
"\"Hello\" & return end tell Save them as hello.keyrill. keyrill-script check hello.keyrill ",
"says nothing where they are right; otherwise it names the line, what is wrong with it and ",
"what may have been meant. sleep 3; keyrill-script run hello.keyrill types the text three ",
"seconds later: put the cursor into another window meanwhile. For a hot key choose Load ",
"Macro... in the menu, and from then on press Ctrl+Super+P. Text is typed with keystroke; ",
"any other key is pressed by its number with key code: Return is 36, Tab 48, Escape 53, ",
"Backspace 51, Delete 117, the arrows 123 (left), 124 (right), 125 (down) and 126 (up). ",
"keyrill-script keys prints all numbers, and keyrill-script keys --press that of the key ",
"that you press next. Modifiers stand behind using: keystroke \"c\" using control down; ",
"command is the Super key, option Alt."
]
},
{
"url": "scripts.html#form-script",
"page": "Macros as scripts",
"title": "A date, a question and a form",
"text": [
"set who to text returned of (display dialog \"Your name?\" default answer \"Ann\") set today ",
"to short date string of (current date) tell application \"System Events\" keystroke who & ",
"tab delay 0.1 keystroke today & tab delay 0.1 keystroke \"Main Street 1\" & return end tell ",
"Click into the first field and play it. It asks for a name, then fills three fields. Tab ",
"goes to the next field; Return in the last one is OK in most forms, while one more Tab ",
"would lead to a button, perhaps to Cancel. short date string is 1/31/26 for the last day ",
"of January; the language reference puts a date together in other ways, and so does the ",
"cookbook. To type only into the window that is meant, put these lines behind tell: if not ",
"(exists process \"Firefox\") then error \"Start Firefox first.\" set frontmost of process ",
"\"Firefox\" to true What a program is called there this line tells, in a terminal: ",
"keyrill-script run -e 'tell application \"System Events\" to name of every process'"
]
},
{
"url": "scripts.html#questions",
"page": "Macros as scripts",
"title": "Questions",
"text": [
"A macro can press keys, wait, beep, ask and tell, read and set the clipboard, and bring a ",
"window to the front; it cannot start programs or touch files. set who to text returned of ",
"(display dialog \"Who is it for?\" default answer \"\") tell application \"System Events\" ",
"keystroke \"Dear \" & who & \",\" end tell A question of a macro A question of a macro Return ",
"presses the default button, Escape the cancel button, which ends the macro. While a ",
"question is open nothing is recorded or played and of the hot keys only stop does ",
"anything: it ends the macro, as a held Escape does; afterwards the macro goes on in the ",
"window that you were in. What a macro has put into the clipboard stays there as long as ",
"Keyrill runs, and beyond if your desktop has a clipboard manager."
]
},
{
"url": "scripts.html#tool",
"page": "Macros as scripts",
"title": "The program keyrill-script",
"text": [
"The program keyrill-script helps with scripts: keyrill-script check FILE says whether a ",
"script is right and where it is not, trace prints what would be pressed, run plays it: ",
"with --times 3 three times, with --times until-stopped until you hold Escape, with --speed ",
"2 with pauses half as long; format brings it into one layout. Its manual page (man ",
"keyrill-script) has the details."
]
},
{
"url": "scripts.html#editors",
"page": "Macros as scripts",
"title": "Colours in editors",
"text": [
"Colours for scripts come with Keyrill for gedit, GNOME Builder and their kin, for Kate, ",
"for Vim, and for VS Code: copy the folder share/keyrill/vscode of the installation to ",
"~/.vscode/extensions/keyrill."
]
},
{
"url": "scripts.html#reference",
"page": "Macros as scripts",
"title": "All of the language",
"text": [
"The language reference has all statements and commands, the limits, the numbers of errors, ",
"and what is not there and why; the key codes and the cookbook with scripts to take and ",
"change have pages of their own. All of it in one text: language.md."
]
},
{
"url": "cookbook.html",
"page": "Cookbook",
"title": "Cookbook",
"words": "example, examples, recipe, sample, template, date, form, signature, clipboard, loop",
"text": [
"Macros for what people ask for most, to take and to change. Here are ten that come as ",
"files, then shorter ones of the language reference."
]
},
{
"url": "cookbook.html#use",
"page": "Cookbook",
"title": "How to use them",
"text": [
"The folder examples beside this manual has the files, ready to open. keyrill --play FILE ",
"plays one into the window that has the focus; copied into the macro folder ",
"(~/.local/share/keyrill) they stand under Macros..., where they can be read, changed, ",
"given other words and a hot key. Lines that begin with -- are comments."
]
},
{
"url": "cookbook.html#date",
"page": "Cookbook",
"title": "Today's date",
"text": [
"-- Types today's date: 2026-01-31. A month or a day with one digit gets a zero in front. ",
"set today to current date set m to text -2 thru -1 of (\"0\" & (month of today as integer)) ",
"set d to text -2 thru -1 of (\"0\" & (day of today)) tell application \"System Events\" to ",
"keystroke (year of today as text) & \"-\" & m & \"-\" & d todays-date.keyrill"
]
},
{
"url": "cookbook.html#form-from-list",
"page": "Cookbook",
"title": "A form filled from a list",
"text": [
"Tab goes to the next field in most forms; the short pauses give the form time to follow. ",
"-- Fills a form of three fields with the data of somebody who is chosen from a list. -- ",
"The cursor stands in the first field; Return in the last one sends the form. set people to ",
"{{\"Ann Smith\", \"Main Street 1\", \"Oslo\"}, {\"Bob Jones\", \"High Street 2\", \"Rome\"}} set names ",
"to {} repeat with person in people set end of names to item 1 of person end repeat set ",
"chosen to choose from list names with prompt \"Whose data?\" if chosen is not false then ",
"repeat with person in people if item 1 of person is item 1 of chosen then tell application ",
"\"System Events\" keystroke item 1 of person & tab delay 0.1 keystroke item 2 of person & ",
"tab delay 0.1 keystroke item 3 of person & return end tell end if end repeat end if ",
"form-from-list.keyrill"
]
},
{
"url": "cookbook.html#signature",
"page": "Cookbook",
"title": "A signature",
"text": [
"-- Types a signature of several lines. tell application \"System Events\" keystroke return & ",
"\"Kind regards,\" & return & return keystroke \"Ann Smith\" & return keystroke \"Orlen Example, ",
"Main Street 1\" & return end tell signature.keyrill"
]
},
{
"url": "cookbook.html#counting-edit",
"page": "Cookbook",
"title": "An edit repeated with counting numbers",
"text": [
"Put the cursor into the first of the lines. -- Numbers the next three lines of a text: \"1. ",
"\", \"2. \", \"3. \" in front of each. set howMany to 3 tell application \"System Events\" repeat ",
"with n from 1 to howMany key code 115 -- Home keystroke (n as text) & \". \" key code 125 -- ",
"Down delay 0.05 end repeat end tell counting-edit.keyrill"
]
},
{
"url": "cookbook.html#slow-text",
"page": "Cookbook",
"title": "A text for a slow program",
"text": [
"-- Types a text with a pause behind each character, for a program that loses keys. set ",
"whole to \"Not so fast, please.\" tell application \"System Events\" repeat with letter in ",
"characters of whole keystroke contents of letter delay 0.1 end repeat end tell ",
"slow-text.keyrill"
]
},
{
"url": "cookbook.html#question-first",
"page": "Cookbook",
"title": "A question first",
"text": [
"-- Asks for a name and types a letter to it. Cancel ends the macro before anything is ",
"typed. set who to text returned of (display dialog \"Who is the letter for?\" default answer ",
"\"Ann\") tell application \"System Events\" keystroke \"Dear \" & who & \",\" & return & return ",
"keystroke \"thank you for your order.\" end tell question-first.keyrill"
]
},
{
"url": "cookbook.html#two-windows",
"page": "Cookbook",
"title": "Two windows in turn",
"text": [
"Alt+Tab has to go to the window that was used before, as in most desktops. -- Types into ",
"two windows in turn: the one in front, and the one that was used before it. on ",
"otherWindow() tell application \"System Events\" to key code 48 using option down -- Alt+Tab ",
"delay 0.5 end otherWindow set pairs to {{\"Ann\", \"Oslo\"}, {\"Bob\", \"Rome\"}} tell application ",
"\"System Events\" repeat with pair in pairs keystroke item 1 of pair & return my ",
"otherWindow() keystroke item 2 of pair & return my otherWindow() end repeat end tell ",
"two-windows.keyrill"
]
},
{
"url": "cookbook.html#every-minute",
"page": "Cookbook",
"title": "A key every minute until stopped",
"text": [
"-- Presses F5 every minute, to load a page anew, until it is stopped: hold Escape, or ",
"press the stop hot key. tell application \"System Events\" repeat key code 96 -- F5 delay 60 ",
"end repeat end tell every-minute.keyrill"
]
},
{
"url": "cookbook.html#clean-clipboard",
"page": "Cookbook",
"title": "A clean clipboard",
"text": [
"It presses no key. Where scripts have no clipboard, as in GNOME's Wayland sessions, it ",
"does not work. -- Makes one line of the clipboard's text: line ends, tabs and rows of ",
"blanks become one blank. Paste it then. on replaced(whole, part, other) set text item ",
"delimiters to part set parts to text items of whole set text item delimiters to other ",
"return parts as text end replaced set clean to the clipboard repeat with sign in {return, ",
"linefeed, tab} set clean to replaced(clean, contents of sign, space) end repeat repeat ",
"while clean contains \" \" set clean to replaced(clean, \" \", space) end repeat set the ",
"clipboard to clean clean-clipboard.keyrill"
]
},
{
"url": "cookbook.html#greeting",
"page": "Cookbook",
"title": "A greeting by the time of day",
"text": [
"-- Types a greeting that fits the time of day. set h to hours of (current date) if h < 12 ",
"then set greeting to \"Good morning\" else if h < 18 then set greeting to \"Good afternoon\" ",
"else set greeting to \"Good evening\" end if tell application \"System Events\" to keystroke ",
"greeting & \", \" greeting.keyrill"
]
},
{
"url": "cookbook.html#short",
"page": "Cookbook",
"title": "Short recipes",
"text": [
"These stand in the language reference, too. Copy one into the Script of a macro, or into a ",
"file with the ending .keyrill."
]
},
{
"url": "cookbook.html#a-greeting-line-by-line",
"page": "Cookbook",
"title": "A greeting, line by line",
"text": [
"return and tab are texts, and & joins texts. tell application \"System Events\" keystroke ",
"\"Dear Sir or Madam,\" & return & return keystroke \"thank you for your letter.\" end tell"
]
},
{
"url": "cookbook.html#todays-date",
"page": "Cookbook",
"title": "Today's date",
"text": [
"current date has the parts of the date; a month and a day with one digit get a zero in ",
"front by being cut off from behind. set d to current date set m to text -2 thru -1 of (\"0\" ",
"& (month of d as integer)) set dd to text -2 thru -1 of (\"0\" & (day of d)) tell ",
"application \"System Events\" to keystroke (year of d as text) & \"-\" & m & \"-\" & dd"
]
},
{
"url": "cookbook.html#a-form-of-three-fields",
"page": "Cookbook",
"title": "A form of three fields",
"text": [
"The question is asked before anything is typed; Cancel ends the macro there. Tab goes to ",
"the next field, whose text is typed over in most forms, and Return in the last one is OK: ",
"one more Tab would lead to a button, perhaps to Cancel. The date is written 1/31/26; see ",
"“Today's date” for other ways. set who to text returned of (display dialog \"Your name?\" ",
"default answer \"Ann\") set today to short date string of (current date) tell application ",
"\"System Events\" keystroke who & tab delay 0.1 keystroke today & tab delay 0.1 keystroke ",
"\"Main Street 1\" & return end tell"
]
},
{
"url": "cookbook.html#a-field-that-holds-something-already",
"page": "Cookbook",
"title": "A field that holds something already",
"text": [
"All of it is selected, and typed over. tell application \"System Events\" keystroke \"a\" ",
"using control down keystroke \"12345\" end tell"
]
},
{
"url": "cookbook.html#the-same-key-many-times",
"page": "Cookbook",
"title": "The same key many times",
"text": [
"A pause gives the program time to follow. tell application \"System Events\" repeat 3 times ",
"key code 125 -- Down delay 0.2 end repeat end tell"
]
},
{
"url": "cookbook.html#only-into-the-right-window",
"page": "Cookbook",
"title": "Only into the right window",
"text": [
"Nothing is typed into a window that was not meant. tell application \"System Events\" if not ",
"(exists process \"Firefox\") then error \"Start Firefox first.\" set frontmost of process ",
"\"Firefox\" to true keystroke \"l\" using control down keystroke \"orlen.example\" & return end ",
"tell"
]
},
{
"url": "cookbook.html#quotes-around-what-is-selected",
"page": "Cookbook",
"title": "Quotes around what is selected",
"text": [
"The program needs a moment to fill the clipboard after Ctrl+C. set the clipboard to \"\" ",
"tell application \"System Events\" keystroke \"c\" using control down delay 0.2 keystroke ",
"quote & (the clipboard) & quote end tell"
]
},
{
"url": "cookbook.html#one-of-several-texts",
"page": "Cookbook",
"title": "One of several texts",
"text": [
"Where the cancel button was pressed the answer is false. set chosen to choose from list ",
"{\"Yes, gladly.\", \"No, thank you.\"} with prompt \"Which answer?\" if chosen is not false then ",
"tell application \"System Events\" to keystroke item 1 of chosen end if"
]
},
{
"url": "cookbook.html#numbers-with-leading-zeros",
"page": "Cookbook",
"title": "Numbers with leading zeros",
"text": [
"Text is cut from behind; repeat with counts. tell application \"System Events\" repeat with ",
"i from 9 to 10 keystroke \"Page \" & text -3 thru -1 of (\"00\" & i) & return end repeat end ",
"tell"
]
},
{
"url": "cookbook.html#a-handler-of-ones-own",
"page": "Cookbook",
"title": "A handler of one's own",
"text": [
"Inside tell it is called with my. on field(content) tell application \"System Events\" to ",
"keystroke content & tab end field field(\"Ann\") field(\"Bob\")"
]
},
{
"url": "cookbook.html#what-to-do-when-something-is-wrong",
"page": "Cookbook",
"title": "What to do when something is wrong",
"text": [
"Without try the macro ends there, and a notification tells why. try set n to \"many\" as ",
"integer on error message number n display alert \"This is no number.\" message message end ",
"try"
]
},
{
"url": "language.html",
"page": "Script language reference",
"title": "Script language reference",
"words": "syntax, grammar, commands, statements, applescript, reference, error numbers, limits",
"text": [
"This page is made from language.md, which keyrill-script reference prints. Its key codes ",
"and its cookbook are pages of their own here. New to it? Macros as scripts begins at the ",
"beginning. Compatible with AppleScript's keyboard commands: a macro is text that a person ",
"can read, compare, edit, loop and branch. It can press keys, wait, ask and tell, and ",
"nothing else. keyrill-script check FILE says what is wrong with one, trace prints what it ",
"would do, run does it, format brings it into one layout. tell application \"System Events\" ",
"repeat with name in {\"Ann\", \"Bob\"} keystroke name & return delay 0.5 end repeat key code 1 ",
"using {command down} end tell"
]
},
{
"url": "language.html#the-first-script-in-five-steps",
"page": "Script language reference",
"title": "The first script, in five steps",
"text": [
"Open an editor and write these three lines. How far they are indented means nothing. tell ",
"application \"System Events\" keystroke \"Hello\" & return end tell Save them as ",
"hello.keyrill. Ask whether they are right: keyrill-script check hello.keyrill says nothing ",
"where they are. keyrill-script trace hello.keyrill prints what would be done. Put the ",
"cursor into another window within three seconds of sleep 3; keyrill-script run ",
"hello.keyrill, and the text is typed there. For a hot key, load the file into Keyrill ",
"(Load Macro... in its menu) and press the combination of Play, Ctrl+Super+P unless the ",
"preferences say another. A text is typed with keystroke, and any key pressed by its number ",
"with key code: see the table of key codes, or let keyrill-script keys --press tell the ",
"number of the next key that you press. The cookbook has more to take and change."
]
},
{
"url": "language.html#the-signs-of-the-examples",
"page": "Script language reference",
"title": "The signs of the examples",
"text": [
"=> VALUE behind an example is what its last statement gives, -> EVENTS what it does, as ",
"keyrill-script trace prints it, and =! NUMBER MESSAGE the error that it ends with. Words ",
"in capitals stand for something of yours; what is in square brackets may be left out, and ",
"of words with | between them one is taken."
]
},
{
"url": "language.html#signs-that-keyboards-lack",
"page": "Script language reference",
"title": "Signs that keyboards lack",
"text": [
"sign or ≤ ≥ <= >=, is less than or equal to, is greater than or equal to ≠ /=, is not ÷ / ",
"¬ at the end of a line a longer line: there is no other form"
]
},
{
"url": "language.html#lines",
"page": "Script language reference",
"title": "Lines",
"text": [
"A line holds one statement. ¬ at its end joins it with the next. -- and # begin a comment, ",
"(* *) enclose one over lines. Upper and lower case are the same in words and names. A name ",
"has letters from A to Z, digits and _, and begins with no digit; |any characters| are a ",
"name, too. the may stand before any noun and means nothing."
]
},
{
"url": "language.html#values",
"page": "Script language reference",
"title": "Values",
"text": [
"kind written integer, real 5, 0.5, 1e-3; beyond 536870911 a whole number becomes real text ",
"\"a\", with \\\" \\\\ \\n \\r \\t; also return, linefeed, tab, space, quote boolean true, false ",
"list, record {1, \"a\"}, {name:\"Ann\", age:5} date date \"2026-01-31 13:05:09\", current date ",
"constant command down, January, missing value, a class such as integer x as text makes one ",
"kind into another: text, integer, real, number, boolean, list, record, date. Lists become ",
"text with the text item delimiters between their items."
]
},
{
"url": "language.html#operators-the-tightest-first",
"page": "Script language reference",
"title": "Operators, the tightest first",
"text": [
"-x · ^ · * / ÷ div mod · + - · & · as · < ≤ > ≥ (is less than, comes before, ...) · = ≠ ",
"(is, is not, ...), contains, starts with, ends with, is in · not · and · or & joins texts, ",
"lists or records. = never converts, but for whole numbers and reals; the case of letters ",
"does not count unless inside considering case. A command takes all that stands behind it: ",
"count of L > 2 counts the truth of L > 2, and (count of L) > 2 compares the number. Where ",
"the value of a command is compared or calculated with, parentheses stand round the ",
"command."
]
},
{
"url": "language.html#elements-and-properties",
"page": "Script language reference",
"title": "Elements and properties",
"text": [
"item 2 of L, item -1 of L, first word of t, last paragraph of t, some item of L, every ",
"character of t, items 2 thru 4 of L, text 1 thru 3 of t, text item 2 of t, text from word ",
"2 to word 3 of t, x's item 2. length, reverse and rest of lists; beginning and end, to set ",
"as well; id of a text; the parts of a date; class of anything; the properties of a record ",
"by their names. Indices count from 1, or from the end with a minus. a reference to item 2 ",
"of L and a reference to x lead to an item or a variable; contents of r is what is there ",
"now, and can be set."
]
},
{
"url": "language.html#statements",
"page": "Script language reference",
"title": "Statements",
"text": [
"set NAME to VALUE set {a, b} to {b, a} set item 2 of L to VALUE set end of L to VALUE copy ",
"VALUE to NAME a copy that shares nothing if CONDITION then STATEMENT if CONDITION then ... ",
"else if CONDITION then ... else ... end if repeat ... end repeat until `exit repeat` or ",
"the user stops it repeat 3 times repeat while CONDITION repeat until CONDITION repeat with ",
"i from 1 to 10 by 2 repeat with x in LIST x is a reference: compare `contents of x` try ",
"... on error message number n ... end try error \"What is wrong\" number 500 on name(a, b) ",
"called as name(1, 2), inside `tell` as my name(1, 2) return a + b end name on name given ",
"size:s called as name given size:5 property p : 5 seen by the whole script; so is what is ",
"`global` tell application \"System Events\" the keyboard commands stand inside ... end tell ",
"considering case ... end considering ignoring white space and punctuation ... end ignoring ",
"Escape, held for 0.3 seconds, or the stop combination ends a script wherever it is, also ",
"inside try. The message that a script catches is English, whatever language the desktop ",
"speaks. People are shown it in their own; what error was given is shown as it was written."
]
},
{
"url": "language.html#commands",
"page": "Script language reference",
"title": "Commands",
"text": [
""
]
},
{
"url": "language.html#key-code",
"page": "Script language reference",
"title": "key code",
"text": [
"key code CODE [using MODIFIERS] Presses the key with a number, or the keys of a list, one ",
"after another. The number names a place on the keyboard, whatever letter is printed there. ",
"MODIFIERS is command down, control down, option down or shift down, or a list of these; ",
"they are held while the key is pressed and come up afterwards. Known inside tell ",
"application \"System Events\" only. tell application \"System Events\" to key code 36 -> ",
"[\"key\",36,[]] tell application \"System Events\" to key code {0, 11} using {shift down, ",
"command down} -> [\"key\",0,[\"command\",\"shift\"]] [\"key\",11,[\"command\",\"shift\"]]"
]
},
{
"url": "language.html#keystroke",
"page": "Script language reference",
"title": "keystroke",
"text": [
"keystroke TEXT [using MODIFIERS] Types a text, character by character, in whatever ",
"application is in front. return and linefeed press Return, tab presses Tab. What is no ",
"text is typed as one: a number, a list. MODIFIERS are held over every character. Known ",
"inside tell application \"System Events\" only. tell application \"System Events\" to ",
"keystroke \"Hello\" & return -> [\"text\",\"Hello\\r\",[]] tell application \"System Events\" to ",
"keystroke \"s\" using command down -> [\"text\",\"s\",[\"command\"]]"
]
},
{
"url": "language.html#key-down",
"page": "Script language reference",
"title": "key down",
"text": [
"key down KEY Presses a key and holds it. KEY is a modifier (shift), a key code, a text ",
"whose keys are meant, or a list of these. What a script forgets to release is released ",
"when it ends. Known inside tell application \"System Events\" only. tell application \"System ",
"Events\" to key down {control, shift down} -> [\"keydown\",\"control\",[]] ",
"[\"keydown\",\"shift\",[]] tell application \"System Events\" to key down 49 -> ",
"[\"keydown\",49,[]]"
]
},
{
"url": "language.html#key-up",
"page": "Script language reference",
"title": "key up",
"text": [
"key up KEY Releases a key that key down holds. KEY is a modifier (shift), a key code, a ",
"text whose keys are meant, or a list of these. A key that is not held stays as it is. ",
"Known inside tell application \"System Events\" only. tell application \"System Events\" to ",
"key up {control, shift down} -> [\"keyup\",\"control\",[]] [\"keyup\",\"shift\",[]] tell ",
"application \"System Events\" to key up 49 -> [\"keyup\",49,[]]"
]
},
{
"url": "language.html#delay",
"page": "Script language reference",
"title": "delay",
"text": [
"delay [SECONDS] Waits. Fractions count: delay 0.01. Pauses keep their pace: a hundred of ",
"them with 0.1 seconds each take ten seconds, whatever is typed between them. A pause ends ",
"at once when the script is stopped. delay 0.5 -> [\"delay\",0.5] delay \"abc\" =! -1700 Can’t ",
"make \"abc\" into type number."
]
},
{
"url": "language.html#beep",
"page": "Script language reference",
"title": "beep",
"text": [
"beep [COUNT] Sounds the bell, once or so many times, at most a hundred. beep -> [\"beep\",1] ",
"beep 3 -> [\"beep\",3]"
]
},
{
"url": "language.html#activate",
"page": "Script language reference",
"title": "activate",
"text": [
"activate [APPLICATION] Brings a window of an application to the front, where keys then go: ",
"tell application \"Firefox\" to activate, or activate application \"Firefox\". The application ",
"is named as its program or as its windows' class. It has to run already. activate -> tell ",
"application \"Firefox\" to activate -> activate 5 =! -1700 Can’t make 5 into type ",
"application."
]
},
{
"url": "language.html#exists",
"page": "Script language reference",
"title": "exists",
"text": [
"exists APPLICATION Whether a window of an application is open: if exists process \"Firefox\" ",
"then. application \"Firefox\" is running and process \"Firefox\" exists ask the same. name of ",
"every process lists what the applications are called that have a window, the one in front ",
"first; processes is short for every process. Behind whose stands what is asked of each: ",
"its name, whether it is frontmost, visible (all are) or background only (none is), ",
"compared as any value and joined by and, or and not. Windows and menus are not to be seen. ",
"trace knows of the one in front alone. exists application \"Firefox\" => true application ",
"\"Firefox\" is running => true tell application \"System Events\" to not (exists process ",
"\"Firefox\") => false tell application \"System Events\" to name of first process whose ",
"frontmost is true => \"Application\" tell application \"System Events\" to name of every ",
"process => {\"Application\"} tell application \"System Events\" to name of every process whose ",
"name contains \"fire\" => {} tell application \"System Events\" to exists (first process whose ",
"name starts with \"app\") => true"
]
},
{
"url": "language.html#clipboard",
"page": "Script language reference",
"title": "clipboard",
"text": [
"the clipboard [as CLASS] The text in the clipboard, which is empty if there is none. set ",
"the clipboard to \"abc\" the clipboard => \"abc\" set the clipboard to \"5\" (the clipboard as ",
"integer) + 1 => 6"
]
},
{
"url": "language.html#set-the-clipboard",
"page": "Script language reference",
"title": "set the clipboard",
"text": [
"set the clipboard to VALUE Puts a text into the clipboard. A paste that is typed right ",
"afterwards finds it. set the clipboard to \"abc\" -> [\"clipboard\",\"abc\"] set the clipboard ",
"to 1 + 1 -> [\"clipboard\",\"2\"]"
]
},
{
"url": "language.html#display-dialog",
"page": "Script language reference",
"title": "display dialog",
"text": [
"display dialog TEXT [default answer TEXT] [hidden answer BOOLEAN] [buttons LIST] [default ",
"button BUTTON] [cancel button BUTTON] [with title TEXT] [with icon ICON] [giving up after ",
"SECONDS] Asks a question and waits for the answer, a record: button returned, with a ",
"default answer text returned, and with giving up after also gave up. Without buttons these ",
"are Cancel and OK, and OK is the default; of buttons of its own none is unless named, by ",
"text or number. The cancel button ends the script with error -128. ICON is stop, note or ",
"caution. display dialog \"Go on?\" -> [\"dialog\",\"Go on?\",[\"Cancel\",\"OK\"]] text returned of ",
"(display dialog \"Name?\" default answer \"Ann\") => \"Ann\""
]
},
{
"url": "language.html#display-alert",
"page": "Script language reference",
"title": "display alert",
"text": [
"display alert TEXT [message TEXT] [as ( informational | warning | critical )] [buttons ",
"LIST] [default button BUTTON] [cancel button BUTTON] [giving up after SECONDS] Tells ",
"something important and waits until a button is pressed. Without buttons there is OK ",
"alone; of buttons of its own the last one is the default. The answer is a record as that ",
"of display dialog. display alert \"Look\" -> [\"alert\",\"Look\",[\"OK\"]] button returned of ",
"(display alert \"Look\" buttons {\"A\", \"B\"} default button \"A\") => \"A\""
]
},
{
"url": "language.html#choose-from-list",
"page": "Script language reference",
"title": "choose from list",
"text": [
"choose from list LIST [with title TEXT] [with prompt TEXT] [default items LIST] [OK button ",
"name TEXT] [cancel button name TEXT] [multiple selections allowed BOOLEAN] [empty ",
"selection allowed BOOLEAN] Lets one item of a list be chosen, or several. The answer is a ",
"list of what was chosen, or false where the cancel button was pressed. choose from list ",
"{\"Ann\", \"Bob\"} with prompt \"Who?\" -> [\"list\",\"Who?\",[\"Ann\",\"Bob\"]] item 1 of (choose from ",
"list {\"Ann\", \"Bob\"} default items {\"Bob\"}) => \"Bob\""
]
},
{
"url": "language.html#display-notification",
"page": "Script language reference",
"title": "display notification",
"text": [
"display notification [TEXT] [with title TEXT] [subtitle TEXT] [sound name TEXT] Shows a ",
"notification and goes on. Sounds are the desktop’s own affair. display notification \"Done\" ",
"with title \"Macro\" -> [\"notification\",\"Done\"]"
]
},
{
"url": "language.html#count",
"page": "Script language reference",
"title": "count",
"text": [
"count [of] VALUE How many items a list has, characters a text, properties a record. number ",
"of VALUE is the same. count {1, 2, 3} => 3 count of words of \"one two\" => 2"
]
},
{
"url": "language.html#offset-of",
"page": "Script language reference",
"title": "offset of",
"text": [
"offset of PART in TEXT Where a text first stands in another one, counted in characters ",
"from 1; 0 if it does not. offset of \"b\" in \"abc\" => 2 offset of \"x\" in \"abc\" => 0"
]
},
{
"url": "language.html#round",
"page": "Script language reference",
"title": "round",
"text": [
"round NUMBER [rounding ( up | down | toward zero | to nearest | as taught in school )] ",
"Makes a number whole. Halves go to the even neighbour, or away from zero as taught in ",
"school. round 2.5 => 2 round 2.5 rounding as taught in school => 3 round -2.1 rounding ",
"down => -3"
]
},
{
"url": "language.html#random-number",
"page": "Script language reference",
"title": "random number",
"text": [
"random number [LIMIT] [from NUMBER] [to NUMBER] [with seed NUMBER] A number by chance: ",
"without limits a real from 0 to 1, with whole limits a whole number, both limits being ",
"possible. The same seed gives the same numbers again. random number from 5 to 5 => 5 ",
"(random number 10 with seed 4) = (random number 10 with seed 4) => true"
]
},
{
"url": "language.html#current-date",
"page": "Script language reference",
"title": "current date",
"text": [
"current date The date and time of now. A date has the properties year, month, day, ",
"weekday, hours, minutes, seconds, time, date string, short date string and time string; ",
"seconds can be added to it, and a date taken from it. date \"2026-01-31\", date \"1/31/2026 ",
"1:05 PM\" and date \"January 31, 2026\" are dates, too. The texts of a date are the same in ",
"all countries; for another order put its parts together, as the recipe “Today's date” ",
"does. class of (current date) => date short date string of date \"2026-01-31\" => \"1/31/26\" ",
"date string of date \"2026-01-31\" => \"Saturday, January 31, 2026\" time string of date ",
"\"2026-01-31 13:05:09\" => \"1:05:09 PM\" (current date) > date \"2020-01-01\" => true"
]
},
{
"url": "language.html#ascii-character",
"page": "Script language reference",
"title": "ascii character",
"text": [
"ASCII character NUMBER The character with a number from 1 to 127. character id has all ",
"characters. ASCII character 65 => \"A\""
]
},
{
"url": "language.html#ascii-number",
"page": "Script language reference",
"title": "ascii number",
"text": [
"ASCII number TEXT The number of a text's first character; 0 for an empty text. ASCII ",
"number \"A\" => 65"
]
},
{
"url": "language.html#log",
"page": "Script language reference",
"title": "log",
"text": [
"log VALUE Tells a value on standard error when keyrill-script runs the script. It does ",
"nothing else. log \"here\" -> log {1, 2} ->"
]
},
{
"url": "language.html#limits",
"page": "Script language reference",
"title": "Limits",
"text": [
"what at most a script 16 MiB, 200 levels of nesting, 32 levels of tell a text 16 MiB a ",
"list 100,000 items a record, a handler 1,000 properties, 1,000 parameters whole numbers ",
"±536,870,911; beyond, they become reals with 12 digits in text handlers that call one ",
"another 1,000 deep all values of a run together 256 MiB key codes 0 to 65535; those ",
"without a key press nothing"
]
},
{
"url": "language.html#error-numbers",
"page": "Script language reference",
"title": "Error numbers",
"text": [
"number when -128 the cancel button of a dialog, or the script was stopped; the latter ",
"cannot be caught -108 a text, a list or all values together are too large -1700 a value ",
"cannot be made into what is needed there -1701, -1721 a handler was called with other ",
"parameters than it has -1708 there is no handler of that name; inside tell one's own are ",
"called with my -1712 something took too long -1728 there is no such item, property or ",
"application -2700 error without a number of its own -2701, -2702 a division by zero; a ",
"number that is too large, or a power that is no number, as (-1) ^ 0.5 -2706 handlers call ",
"one another too deeply -2720, -2754 one thing declared in two ways -2741 the script does ",
"not compile -2750 to -2752 a parameter, property or handler given twice -2753 a variable ",
"that was never set -2755, -2760 exit repeat outside of a loop; too many levels of tell ",
"-2763 a value was needed, and none came -10000, 1002 the desktop refused a step; it allows ",
"no keys to be pressed -10006 this cannot be set"
]
},
{
"url": "language.html#what-is-not-there-and-why",
"page": "Script language reference",
"title": "What is not there, and why",
"text": [
"Macros are passed on as text, and nobody should have to read one for fear of it. So there ",
"is no do shell script, no run script, load script or store script, no open location, no ",
"reading or writing of files, no network, no mouse and no looking into windows (click, menu ",
"item, UI elements): a macro presses keys, waits, asks, and brings windows to the front. To ",
"start a program press the keys that start it on your desktop. Applications have no ",
"dictionaries of their own here: tell application \"Firefox\" knows activate, running and ",
"frontmost, and nothing else. Raw codes («event ...»), script objects, whose but for ",
"processes, choose file, path to and say are left out. use lines are read and mean nothing. ",
"What a property holds is not kept from one run to the next. Dates are written in one form, ",
"whatever the locale."
]
},
{
"url": "key-codes.html",
"page": "Key codes",
"title": "Key codes",
"words": "keycode, keycodes, key code, number, scancode, keypad, arrow, function key",
"text": [
"key code NUMBER in a script presses the key with that number. A number is a place on the ",
"keyboard, whatever letter is printed there; the names are those of a US keyboard. ",
"keyrill-script keys prints the list, and keyrill-script keys --press the number of the key ",
"that you press next."
]
},
{
"url": "key-codes.html#keys",
"page": "Key codes",
"title": "By key",
"text": [
""
]
},
{
"url": "key-codes.html#letters",
"page": "Key codes",
"title": "Letters",
"text": [
"A 0 B 11 C 8 D 2 E 14 F 3 G 5 H 4 I 34 J 38 K 40 L 37 M 46 N 45 O 31 P 35 Q 12 R 15 S 1 T ",
"17 U 32 V 9 W 13 X 7 Y 16 Z 6"
]
},
{
"url": "key-codes.html#digits",
"page": "Key codes",
"title": "Digits",
"text": [
"0 29 1 18 2 19 3 20 4 21 5 23 6 22 7 26 8 28 9 25"
]
},
{
"url": "key-codes.html#function-keys",
"page": "Key codes",
"title": "Function keys",
"text": [
"F1 122 F2 120 F3 99 F4 118 F5 96 F6 97 F7 98 F8 100 F9 101 F10 109 F11 103 F12 111 F16 106 ",
"F17 64 F18 79 F19 80 F20 90"
]
},
{
"url": "key-codes.html#keypad",
"page": "Key codes",
"title": "Keypad",
"text": [
"Keypad 0 82 Keypad 1 83 Keypad 2 84 Keypad 3 85 Keypad 4 86 Keypad 5 87 Keypad 6 88 Keypad ",
"7 89 Keypad 8 91 Keypad 9 92 Keypad Comma 95 Keypad Decimal 65 Keypad Divide 75 Keypad ",
"Enter 76 Keypad Enter, as 76 52 Keypad Equals 81 Keypad Minus 78 Keypad Multiply 67 Keypad ",
"Plus 69 Num Lock 71"
]
},
{
"url": "key-codes.html#modifiers-and-locks",
"page": "Key codes",
"title": "Modifiers and locks",
"text": [
"Alt (option) 58 AltGr, right Alt 61 Caps Lock 57 Ctrl (control) 59 Shift 56 Super ",
"(command) 55 right Ctrl 62 right Shift 60 right Super 54"
]
},
{
"url": "key-codes.html#moving-and-editing",
"page": "Key codes",
"title": "Moving and editing",
"text": [
"Backspace 51 Delete 117 Down Arrow 125 End 119 Escape 53 Home 115 Insert 114 Left Arrow ",
"123 Page Down 121 Page Up 116 Return 36 Right Arrow 124 Space 49 Tab 48 Up Arrow 126"
]
},
{
"url": "key-codes.html#signs",
"page": "Key codes",
"title": "Signs",
"text": [
"' 39 , 43 - 27 . 47 / 44 ; 41 = 24 [ 33 \\ 42 ] 30 ` 50 the key beside left Shift 10"
]
},
{
"url": "key-codes.html#others",
"page": "Key codes",
"title": "Others",
"text": [
"Brightness Down 145 Brightness Up 144 Dashboard 130 Hangul 104 Hanja 102 Japanese ",
"underscore 94 Launchpad 131 Menu 110 Mission Control 160 Mute 74 Pause 113 Print Screen ",
"105 Scroll Lock 107 Spotlight 129 Volume Down 73 Volume Up 72 Yen 93"
]
},
{
"url": "key-codes.html#recorded",
"page": "Key codes",
"title": "Codes of a recorded macro",
"text": [
"A code above 511 is a key and how it was typed, added up. Recordings have such codes where ",
"the place alone does not tell what was typed; only Keyrill plays them, and keyrill-script ",
"check says so. added in hexadecimal the key was typed 512 0x200 with the chooser of the ",
"third level held, AltGr on most keyboards 1024 0x400 with the chooser of the fifth level ",
"held; 1536 is both 2048 0x800 under Caps Lock, where nothing but the lock makes its ",
"letter, as Í on the Czech row of digits 8192 to 32768 0x2000 to 0x8000 in the first to the ",
"fourth layout of the list, whichever is in force otherwise 4096 (0x1000) begins the keys ",
"that have no number of their own: 4096 and the key's number in the Linux kernel, up to ",
"247, as 4279 for F13. Modifiers are no part of a code; they stand behind using, so that ",
"shift down is also what Caps Lock did to a letter from A to Z. tell application \"System ",
"Events\" to key code 524 -> [\"key\",524,[]] tell application \"System Events\" to key code ",
"16896 using shift down -> [\"key\",16896,[\"shift\"]]"
]
},
{
"url": "key-codes.html#numbers",
"page": "Key codes",
"title": "By number",
"text": [
"The third column has the names that the Linux kernel gives to the keys, and their numbers ",
"there. Other codes below 512 press nothing. code key in the kernel 0 A KEY_A, 30 1 S ",
"KEY_S, 31 2 D KEY_D, 32 3 F KEY_F, 33 4 H KEY_H, 35 5 G KEY_G, 34 6 Z KEY_Z, 44 7 X KEY_X, ",
"45 8 C KEY_C, 46 9 V KEY_V, 47 10 the key beside left Shift KEY_102ND, 86 11 B KEY_B, 48 ",
"12 Q KEY_Q, 16 13 W KEY_W, 17 14 E KEY_E, 18 15 R KEY_R, 19 16 Y KEY_Y, 21 17 T KEY_T, 20 ",
"18 1 KEY_1, 2 19 2 KEY_2, 3 20 3 KEY_3, 4 21 4 KEY_4, 5 22 6 KEY_6, 7 23 5 KEY_5, 6 24 = ",
"KEY_EQUAL, 13 25 9 KEY_9, 10 26 7 KEY_7, 8 27 - KEY_MINUS, 12 28 8 KEY_8, 9 29 0 KEY_0, 11 ",
"30 ] KEY_RIGHTBRACE, 27 31 O KEY_O, 24 32 U KEY_U, 22 33 [ KEY_LEFTBRACE, 26 34 I KEY_I, ",
"23 35 P KEY_P, 25 36 Return KEY_ENTER, 28 37 L KEY_L, 38 38 J KEY_J, 36 39 ' ",
"KEY_APOSTROPHE, 40 40 K KEY_K, 37 41 ; KEY_SEMICOLON, 39 42 \\ KEY_BACKSLASH, 43 43 , ",
"KEY_COMMA, 51 44 / KEY_SLASH, 53 45 N KEY_N, 49 46 M KEY_M, 50 47 . KEY_DOT, 52 48 Tab ",
"KEY_TAB, 15 49 Space KEY_SPACE, 57 50 ` KEY_GRAVE, 41 51 Backspace KEY_BACKSPACE, 14 52 ",
"Keypad Enter, as 76 (played, never recorded) KEY_KPENTER, 96 53 Escape KEY_ESC, 1 54 right ",
"Super KEY_RIGHTMETA, 126 55 Super (command) KEY_LEFTMETA, 125 56 Shift KEY_LEFTSHIFT, 42 ",
"57 Caps Lock KEY_CAPSLOCK, 58 58 Alt (option) KEY_LEFTALT, 56 59 Ctrl (control) ",
"KEY_LEFTCTRL, 29 60 right Shift KEY_RIGHTSHIFT, 54 61 AltGr, right Alt KEY_RIGHTALT, 100 ",
"62 right Ctrl KEY_RIGHTCTRL, 97 64 F17 KEY_F17, 187 65 Keypad Decimal KEY_KPDOT, 83 67 ",
"Keypad Multiply KEY_KPASTERISK, 55 69 Keypad Plus KEY_KPPLUS, 78 71 Num Lock KEY_NUMLOCK, ",
"69 72 Volume Up KEY_VOLUMEUP, 115 73 Volume Down KEY_VOLUMEDOWN, 114 74 Mute KEY_MUTE, 113 ",
"75 Keypad Divide KEY_KPSLASH, 98 76 Keypad Enter KEY_KPENTER, 96 78 Keypad Minus ",
"KEY_KPMINUS, 74 79 F18 KEY_F18, 188 80 F19 KEY_F19, 189 81 Keypad Equals KEY_KPEQUAL, 117 ",
"82 Keypad 0 KEY_KP0, 82 83 Keypad 1 KEY_KP1, 79 84 Keypad 2 KEY_KP2, 80 85 Keypad 3 ",
"KEY_KP3, 81 86 Keypad 4 KEY_KP4, 75 87 Keypad 5 KEY_KP5, 76 88 Keypad 6 KEY_KP6, 77 89 ",
"Keypad 7 KEY_KP7, 71 90 F20 KEY_F20, 190 91 Keypad 8 KEY_KP8, 72 92 Keypad 9 KEY_KP9, 73 ",
"93 Yen KEY_YEN, 124 94 Japanese underscore KEY_RO, 89 95 Keypad Comma KEY_KPCOMMA, 121 96 ",
"F5 KEY_F5, 63 97 F6 KEY_F6, 64 98 F7 KEY_F7, 65 99 F3 KEY_F3, 61 100 F8 KEY_F8, 66 101 F9 ",
"KEY_F9, 67 102 Hanja KEY_HANJA, 123 103 F11 KEY_F11, 87 104 Hangul KEY_HANGEUL, 122 105 ",
"Print Screen KEY_SYSRQ, 99 106 F16 KEY_F16, 186 107 Scroll Lock KEY_SCROLLLOCK, 70 109 F10 ",
"KEY_F10, 68 110 Menu KEY_COMPOSE, 127 111 F12 KEY_F12, 88 113 Pause KEY_PAUSE, 119 114 ",
"Insert KEY_INSERT, 110 115 Home KEY_HOME, 102 116 Page Up KEY_PAGEUP, 104 117 Delete ",
"KEY_DELETE, 111 118 F4 KEY_F4, 62 119 End KEY_END, 107 120 F2 KEY_F2, 60 121 Page Down ",
"KEY_PAGEDOWN, 109 122 F1 KEY_F1, 59 123 Left Arrow KEY_LEFT, 105 124 Right Arrow ",
"KEY_RIGHT, 106 125 Down Arrow KEY_DOWN, 108 126 Up Arrow KEY_UP, 103 129 Spotlight ",
"(played, never recorded) KEY_SEARCH, 217 130 Dashboard (played, never recorded) ",
"KEY_DASHBOARD, 204 131 Launchpad (played, never recorded) KEY_DASHBOARD, 204 144 ",
"Brightness Up (played, never recorded) KEY_BRIGHTNESSUP, 225 145 Brightness Down (played, ",
"never recorded) KEY_BRIGHTNESSDOWN, 224 160 Mission Control (played, never recorded) ",
"KEY_SCALE, 120"
]
},
{
"url": "keyboards.html",
"page": "Keyboards and layouts",
"title": "Keyboards and layouts",
"words": "layout, keymap, azerty, qwertz, dvorak, altgr, dead key, accent, unicode, emoji, cyrillic, caps lock, num lock, letter, wrong",
"text": [
"Recorded keys are places on the keyboard; text is characters. Most questions about layouts ",
"come down to that."
]
},
{
"url": "keyboards.html#places",
"page": "Keyboards and layouts",
"title": "Keys or text",
"text": [
"Keys are kept by their place on the keyboard, not by the character that they type. ",
"Recorded on an English keyboard layout and played on a French one, a macro presses the ",
"same keys, which type other letters there. Text in a script, keystroke \"...\", arrives as ",
"it is written, whatever the layout, as far as the session can type it. you want take the ",
"same text under every layout keystroke, or Convert to Text for keys that you have recorded ",
"the same place, as for arrows, function keys and games key code with the number of the ",
"key, or Convert to Keys"
]
},
{
"url": "keyboards.html#characters",
"page": "Keyboards and layouts",
"title": "Which characters can be typed",
"text": [
"In an X11 session, under sway and wherever else the compositor offers virtual keyboards: ",
"all of them, also those that your layout has no key for. Under KDE's Wayland sessions ",
"those that one of your layouts has, under GNOME's those of the layout in force: see ",
"Wayland, desktop by desktop. Saved macros are plain ASCII; a character beyond that is ",
"written by its number, as in keystroke (character id 233) for é."
]
},
{
"url": "keyboards.html#switching",
"page": "Keyboards and layouts",
"title": "Switching the layout in a recording",
"text": [
"Switching between keyboard layouts is part of the macro. Keys that switch are kept as ",
"keys, also two modifiers that you press together for it, as Alt+Shift. Where you switch in ",
"a panel, or by a key that you hold, the keys that follow name their layout themselves: ",
"8192 is added to their code for each place in the list of layouts, so that key code 16384 ",
"is the key of code 0 in the second one. Play such a macro in the layout in which its ",
"recording began. A key that is typed with AltGr has 512 added, one of the fifth level ",
"1024, a letter that only Caps Lock makes 2048 (Codes of a recorded macro)."
]
},
{
"url": "keyboards.html#locks",
"page": "Keyboards and layouts",
"title": "Caps Lock and Num Lock",
"text": [
"Recorded keys type what was typed, whatever lock was on, and a shortcut that you press ",
"under Caps Lock is recorded as you pressed it. What locks do while a macro plays, Playing ",
"tells: they do not change what is typed. KDE's Wayland sessions have an exception: scripts ",
"that keyrill-script plays type other letters under Caps Lock."
]
},
{
"url": "keyboards.html#hot-keys",
"page": "Keyboards and layouts",
"title": "Hot keys under other layouts",
"text": [
"Hot keys are keys by their place, too, and work while a lock is on; the preferences show ",
"what is printed there in the layout of now. Where the keyboard layout has no key for a hot ",
"key they say so."
]
},
{
"url": "keyboards.html#several",
"page": "Keyboards and layouts",
"title": "Several keyboards",
"text": [
"All keyboards count as one: what is pressed on any of them is recorded. A key that is ",
"pressed on two keyboards at once is recorded as often as the program gets it."
]
},
{
"url": "wayland.html",
"page": "Wayland, desktop by desktop",
"title": "Wayland, desktop by desktop",
"words": "wayland, sway, kde, plasma, gnome, mutter, kwin, wlroots, hyprland, xwayland, keyrill-access, permission, password, portal, x11, xorg",
"text": [
"A Wayland session shows no program what is typed in others, and each desktop has its own ",
"ways to press keys and to give hot keys. keyrill --check in a terminal tells what works in ",
"yours, line by line, with what can be done about what does not. In the tables of this page ",
"what is in brackets follows from the protocols and has not been run."
]
},
{
"url": "wayland.html#recording",
"page": "Wayland, desktop by desktop",
"title": "To record: keyrill-access",
"text": [
"To record, Keyrill needs the service keyrill-access, which the package ",
"keyrill-wayland-access installs or, from Keyrill's sources, tools/access install. The ",
"service opens the keyboard for Keyrill while it records or plays, after you have given ",
"your password, and closes it then. What you type while you are asked is not recorded. ",
"Keyboards that you may read anyway need no service. Where the service is not installed or ",
"you refuse, a window called Record Here opens: what you type in it is recorded, every key ",
"of it, and can be played in all programs; what you type elsewhere is not. Let no other ",
"program type there meanwhile: one that brings a keyboard of its own, as wtype does, has ",
"other characters on its keys than yours, and its keys are recorded as yours in the same ",
"places. The combination that stops a recording ends it, and so does closing the window. ",
"When the permission ends in the middle, as when another user's session comes to the front, ",
"the recording ends and what was recorded until then is kept. It has been run with pipes in ",
"the keyboards' place, and under sway and KWin in a virtual machine with a keyboard of its ",
"own; not with one that somebody can touch."
]
},
{
"url": "wayland.html#hands",
"page": "Wayland, desktop by desktop",
"title": "Your own keys during a play, and Escape",
"text": [
"While Keyrill may read the keyboard, a play waits for modifier keys that you hold, and ",
"Escape ends it. A play never asks for a password: where nothing is allowed, it begins a ",
"quarter of a second after you have released its hot key, and the stop combination alone ",
"ends it."
]
},
{
"url": "wayland.html#bind",
"page": "Wayland, desktop by desktop",
"title": "Where the desktop gives no hot keys",
"text": [
"Bind keyrill --action=record, stop, play, multiple and save-pause, or keyrill --play NAME ",
"for a macro of the macro folder, in the compositor's own settings: From other programs and ",
"the desktop's own keys."
]
},
{
"url": "wayland.html#sway",
"page": "Wayland, desktop by desktop",
"title": "sway",
"text": [
"Macros and scripts are played into every window, with every character. The hot keys work ",
"in every window too: what your own configuration of sway binds is left alone, and the ",
"preferences say so beside the field. A bell there is none. A screen locker that tells no ",
"desktop of itself is known by the keyboard that no window has while a program of yours ",
"runs that asks for passwords under its own name: plays end, and nothing of what is typed ",
"into it is recorded. Starting Keyrill a second time brings its small window to the ",
"workspace where you are; behind a window that fills the screen it stays, since it must ",
"take neither the keys nor the screen. recording all windows, from the keyboards that ",
"keyrill-access opens after a password recording where keys may not be seen what is typed ",
"into the window \"Record Here\" hands and Escape during a play where the keyboards may be ",
"read hot keys everywhere, by sway's bindings pressing keys all windows, by a virtual ",
"keyboard text any character clipboard of scripts yes, by data control overlay and prompt ",
"above full-screen windows, on a layer of the compositor's bringing windows to the front by ",
"sway tray status notifiers keyrill --action yes"
]
},
{
"url": "wayland.html#kde",
"page": "Wayland, desktop by desktop",
"title": "KDE",
"text": [
"The hot keys work in every window, and macros are played into every window with the ",
"characters that your keyboard layouts have; a text with another one is refused by its ",
"name. As long as Keyrill may not read the keyboard, what you hold while a macro plays is ",
"part of what it presses: on the way to the stop combination an A is Ctrl+A. KDE 5.27 asks ",
"nothing before keys are pressed, newer ones once. It has been run with KWin 5.27 and its ",
"portal, headless and in that virtual machine; Plasma's shell was not there. recording all ",
"windows, from the keyboards that keyrill-access opens after a password recording where ",
"keys may not be seen what is typed into the window \"Record Here\" hands and Escape during a ",
"play where the keyboards may be read hot keys everywhere, by KDE's shortcuts pressing keys ",
"all windows, by KDE's portal text characters of the user's layouts clipboard of scripts ",
"yes, by data control overlay and prompt above full-screen windows, on a layer of the ",
"compositor's bringing windows to the front by KWin's scripts tray status notifiers keyrill ",
"--action yes"
]
},
{
"url": "wayland.html#gnome",
"page": "Wayland, desktop by desktop",
"title": "GNOME",
"text": [
"GNOME, from version 48 on, asks you once which combinations Keyrill's hot keys are to be; ",
"afterwards they are changed in GNOME's settings, under Apps, and the preferences here tell ",
"which they are. GNOME before 48 gives programs none: Keyrill asks whether it may write ",
"custom shortcuts of its own into your settings while it runs, where they stand under ",
"Keyboard, Custom Shortcuts. Or bind commands such as keyrill --action=play there yourself. ",
"Before the first play GNOME asks whether Keyrill may press keys, and shows a sign while it ",
"may, until a minute after the last play. Texts have to be typed with the keyboard layout ",
"that is in force: GNOME lets no program switch it. Which one that is GNOME's settings ",
"tell, as long as ibus is installed there. A stroke of a macro that is one of the hot keys ",
"is lost there: the desktop takes it, and it starts nothing. GNOME 43 has been run ",
"headless. What is told of 48 follows from the sources of its portal; Keyrill's part has ",
"been run with portals that stand in for the desktop's. recording all windows, from the ",
"keyboards that keyrill-access opens after a password recording where keys may not be seen ",
"what is typed into the window \"Record Here\" hands and Escape during a play where the ",
"keyboards may be read hot keys (from 48 on: everywhere, by the portal, once you allow it); ",
"before: everywhere, by custom shortcuts in GNOME's settings, once you agree pressing keys ",
"all windows, by the portal, once you allow it text characters of the layout in force ",
"clipboard of scripts no overlay and prompt above full-screen windows, as X11 windows ",
"bringing windows to the front no tray status notifiers, with the extension AppIndicator ",
"keyrill --action yes"
]
},
{
"url": "wayland.html#virtual-keyboards",
"page": "Wayland, desktop by desktop",
"title": "Other compositors with virtual keyboards",
"text": [
"Macros and scripts are played into every window, with every character. Bind keys in the ",
"compositor's settings. A bell there is none. It has been run under phoc, headless; labwc, ",
"niri, river, Wayfire and others have the same, and have not been run. recording all ",
"windows, from the keyboards that keyrill-access opens after a password recording where ",
"keys may not be seen (what is typed into the window \"Record Here\") hands and Escape during ",
"a play (where the keyboards may be read) hot keys none; bind keyrill --action=... pressing ",
"keys all windows, by a virtual keyboard text any character clipboard of scripts where data ",
"control is offered overlay and prompt above other windows, where layers are offered ",
"bringing windows to the front where toplevels can be managed tray (status notifiers) ",
"keyrill --action yes"
]
},
{
"url": "wayland.html#others",
"page": "Wayland, desktop by desktop",
"title": "All other Wayland sessions",
"text": [
"In other Wayland sessions Keyrill sees and reaches only the windows of X11 programs. What ",
"you type into other windows is not recorded, and macros are not played into them. Log in ",
"to an X11 session (\"Xorg\") to use Keyrill everywhere. A session that offers neither ",
"virtual keyboards nor an X server is refused with what to install. recording (X11 windows) ",
"recording where keys may not be seen - hands and Escape during a play (X11 windows) hot ",
"keys (while an X11 window has the focus) pressing keys (X11 windows) text (X11 windows, ",
"any character) clipboard of scripts (as the compositor passes it on) overlay and prompt ",
"(above X11 windows) bringing windows to the front (X11 windows) tray (both) keyrill ",
"--action (yes)"
]
},
{
"url": "wayland.html#x11",
"page": "Wayland, desktop by desktop",
"title": "For comparison: X11",
"text": [
"It has been run with Xvfb and Xephyr under openbox, xfwm4, fluxbox, jwm and icewm, and ",
"without a window manager. recording all windows, by XInput; RECORD counts repeats ",
"recording where keys may not be seen - hands and Escape during a play by XInput hot keys ",
"everywhere, by key grabs pressing keys all windows, by XTEST text any character clipboard ",
"of scripts yes overlay and prompt above full-screen windows bringing windows to the front ",
"by the window manager tray docked icons and status notifiers keyrill --action yes"
]
},
{
"url": "remote.html",
"page": "Remote desktops and virtual machines",
"title": "Remote desktops and virtual machines",
"words": "remote, vnc, rdp, ssh, viewer, virtual machine, vm, guest, host, nested, xephyr, on-screen keyboard, kiosk, xtest",
"text": [
"There are two ways round: Keyrill runs on the machine before you and types into the window ",
"of another one, or it runs over there. Where you can, let it run on the machine whose ",
"programs are typed into."
]
},
{
"url": "remote.html#viewer",
"page": "Remote desktops and virtual machines",
"title": "Keyrill here, the other machine in a window",
"text": [
"That window is a window like others: played keys go to it when it has the focus, and what ",
"it makes of them is its own affair. A macro of keys presses places on the keyboard; which ",
"letters they type over there the layout over there decides. In an X11 session characters ",
"that your own layout has no key for are bound to unused keys while a text is typed; ",
"whether a viewer passes such keys on has not been tried. Many viewers can take the ",
"keyboard to themselves. While one has it nothing is recorded, and the overlay says Not ",
"recorded: keyboard held; When nothing is recorded tells how long that takes to be noticed. ",
"Let the viewer give the keyboard free to record what you type in it."
]
},
{
"url": "remote.html#inside",
"page": "Remote desktops and virtual machines",
"title": "Keyrill in the other machine",
"text": [
"Keyrill works in the session over there as in every session of its kind. In an X11 session ",
"what comes from a remote desktop or an on-screen keyboard by XTEST is seen as typed: it is ",
"recorded, and the stop combination typed that way ends a playback. Servers inside a ",
"window, viewers of remote desktops and kiosk set-ups sometimes switch XTEST off; switch it ",
"on there. Without it Keyrill can press no keys, says so and ends: keyrill --check says The ",
"X server lacks the extension XTEST, which presses keys. Where Keyrill runs on both ",
"machines, the same combinations are in each other's way: choose other ones in one of them."
]
},
{
"url": "remote.html#access",
"page": "Remote desktops and virtual machines",
"title": "Wayland sessions from afar",
"text": [
"Whoever comes in by network has no session at that machine, and keyrill-access opens no ",
"keyboard for him; nobody is even asked. What is typed into the window Record Here can be ",
"recorded there."
]
},
{
"url": "remote.html#terminal",
"page": "Remote desktops and virtual machines",
"title": "From a terminal without a display",
"text": [
"keyrill asks the Keyrill that runs over the session bus, so that keyrill --action=stop ",
"works also where there is no display, as long as the session bus is reached. keyrill ",
"--list, keyrill-script check, trace and format need neither."
]
},
{
"url": "troubles.html",
"page": "Troubles by symptom",
"title": "Troubles by symptom",
"words": "problem, error, broken, does not work, help, bug, support, fix, faq",
"text": [
"keyrill --check in a terminal tells, line by line, what works in your session and what ",
"does not, and what you can do about it: what the session lets programs do, who holds the ",
"hot keys, whether there is a tray. It opens no window and changes nothing. What Works Here ",
"in the menu's Help shows the same, and copies it for a report. What works in a session ",
"without a tray What Works Here"
]
},
{
"url": "troubles.html#no-icon",
"page": "Troubles by symptom",
"title": "There is no icon",
"text": [
"GNOME shows icons only with an extension (\"AppIndicator and KStatusNotifierItem Support\"). ",
"Without any tray the small window appears; it goes as soon as there is a tray."
]
},
{
"url": "troubles.html#ends",
"page": "Troubles by symptom",
"title": "Keyrill ends as soon as it is started",
"text": [
"Keyrill requires that programs can see and press keys in this session. The session lacks ",
"one of the things that Configuration lists, and the message names it. Keyrill is running ",
"already. There is one Keyrill in a session: a second start shows its window, or hands over ",
"its file, and where there is no session bus it can only say this. Where the running one ",
"does not answer, the message tells the number of its process: End it and start Keyrill ",
"again."
]
},
{
"url": "troubles.html#hot-key",
"page": "Troubles by symptom",
"title": "A hot key does nothing",
"text": [
"Another program may have it. The preferences say so beside the field, and the icon's ",
"tooltip does. Choose another combination, or free it there. While the preferences or a ",
"question of Keyrill's are open, hot keys are off. In KDE Plasma the clipboard has ",
"Ctrl+Super+R from the start. In its System Settings, under Shortcuts, take the combination ",
"from \"Manually Invoke Action on Current Clipboard\", or choose another one for Start ",
"Recording in Keyrill's preferences. In a Wayland session it depends on the desktop whether ",
"there are hot keys: This compositor gives no hot keys to programs. See Where the desktop ",
"gives no hot keys."
]
},
{
"url": "troubles.html#cleared",
"page": "Troubles by symptom",
"title": "A hot key that was cleared still works",
"text": [
"It does until Keyrill is started again, and the preferences say so."
]
},
{
"url": "troubles.html#not-recorded",
"page": "Troubles by symptom",
"title": "Nothing is recorded",
"text": [
"If the overlay says Not recorded: keyboard held, another program has the keyboard to ",
"itself: When nothing is recorded. If it says Waiting for your permission, your desktop ",
"asks for your password: To record: keyrill-access. If a window called Record Here opens, ",
"Keyrill may not see what is typed elsewhere: the same page tells what to install."
]
},
{
"url": "troubles.html#missing",
"page": "Troubles by symptom",
"title": "Something is missing from the recording",
"text": [
"Pauses: they are kept only where you want it. Pauses The tap of Super that opens the ",
"launcher: tick Record modifier keys on their own. Modifier keys Mouse clicks: they are ",
"never recorded. The repeats of a key that is held: The X server lacks the extension ",
"RECORD: a key that is held is recorded once."
]
},
{
"url": "troubles.html#wrong-window",
"page": "Troubles by symptom",
"title": "The macro is typed into the wrong window",
"text": [
"It goes to the window with the focus. Click into the right one first, and play by hot key. ",
"A script can see to it that it types into one program only: two lines do it."
]
},
{
"url": "troubles.html#wrong-letters",
"page": "Troubles by symptom",
"title": "Other letters are typed than were recorded",
"text": [
"The keyboard layout is another one. Convert to Text makes the macro type the same under ",
"every layout: Keyboards and layouts."
]
},
{
"url": "troubles.html#slow",
"page": "Troubles by symptom",
"title": "Keys are lost in a slow program",
"text": [
"Record it again with a pause before the place where it happens (Save Pause), or write a ",
"delay into the script. The cookbook has a text for a slow program."
]
},
{
"url": "troubles.html#not-begun",
"page": "Troubles by symptom",
"title": "A play does not begin",
"text": [
"It begins when all keys are up: let go of the hot key, and of Ctrl, Alt, Super and Shift. ",
"While a question of Keyrill's is open, or the screen is locked, nothing is played."
]
},
{
"url": "troubles.html#not-played",
"page": "Troubles by symptom",
"title": "A macro is not played, or not to its end",
"text": [
"A notification says in which line and why. keyrill-script check FILE says more: the place ",
"in the line, and what may have been meant. The program keyrill-guard, which releases keys ",
"after a crash, is not there; nothing is played without it. Install Keyrill again."
]
},
{
"url": "troubles.html#endless",
"page": "Troubles by symptom",
"title": "A macro does not end",
"text": [
"Hold Escape for a third of a second, or press the stop hot key; keyrill --action=stop does ",
"the same. To stop a playback tells more."
]
},
{
"url": "troubles.html#clipboard",
"page": "Troubles by symptom",
"title": "A script does not get at the clipboard",
"text": [
"This compositor shows the clipboard to windows in front alone. GNOME's Wayland sessions ",
"are such; in others, and in X11 sessions, scripts have the clipboard."
]
},
{
"url": "troubles.html#saving",
"page": "Troubles by symptom",
"title": "A macro or the settings were not saved",
"text": [
"The message names the cause, and what was there before is whole. Saved macros are plain ",
"ASCII: a message names the line and the character that is not, and its number can be ",
"written in its place. Settings that cannot be read are put aside as keyrill.conf.bad- with ",
"the time, and Keyrill says Something is wrong with your settings."
]
},
{
"url": "troubles.html#report",
"page": "Troubles by symptom",
"title": "None of these",
"text": [
"Help in the menu has Get Support and Report a Bug; the latter opens a mail with your ",
"system's version and hardware filled in, which you can read and change before you send it."
]
},
{
"url": "privacy.html",
"page": "Privacy and safety",
"title": "Privacy and safety",
"words": "privacy, security, safe, password, keylogger, spy, log, telemetry, data",
"text": [
"Keyrill sees keys, and presses them. This page tells what it does with that, and what ",
"keeps it from more."
]
},
{
"url": "privacy.html#sees",
"page": "Privacy and safety",
"title": "What Keyrill sees and keeps",
"text": [
"While it runs, Keyrill sees every key that is pressed in the session, because only so can ",
"it record. It uses them for the macro that is being recorded and for nothing else: nothing ",
"is logged, kept or sent. Macros are kept in memory until you save them. While the screen ",
"is locked nothing is recorded, whether the locker tells the desktop of it or only takes ",
"the keyboard. Do not record passwords: a macro file is plain text. What is typed while ",
"nothing is recorded, also into a screen locker, is wiped from the program's memory as soon ",
"as it has been seen. In Wayland sessions Keyrill sees keys only while it records or plays, ",
"and only after you have agreed, unless your keyboards may be read by every program of ",
"yours."
]
},
{
"url": "privacy.html#files",
"page": "Privacy and safety",
"title": "Where your macros are",
"text": [
"file or folder what is in it ~/.local/share/keyrill the macros that you keep, as plain ",
"text ~/.local/state/keyrill/history your last 50 recordings, only where you want the ",
"history kept; for you alone to read ~/.local/state/keyrill/unsaved what you have changed ",
"and not saved; for you alone to read ~/.config/keyrill/keyrill.conf, macros.conf settings; ",
"hot key, times and speed of macros. Nothing that you typed"
]
},
{
"url": "privacy.html#network",
"page": "Privacy and safety",
"title": "The network",
"text": [
"Keyrill asks the network for one thing, whether there is a newer version, and only where ",
"you have ticked it or choose it. It sends neither cookies nor anything about your machine. ",
"The Debian package cannot even ask. A bug report is a mail that you read and send ",
"yourself."
]
},
{
"url": "privacy.html#scripts",
"page": "Privacy and safety",
"title": "Macros of others",
"text": [
"A macro can press keys, wait, beep, ask and tell, read and set the clipboard, and bring a ",
"window to the front. It cannot start programs, read or write files, use the network or ",
"look into windows. Keys can do much all the same: read a macro before you play it. ",
"keyrill-script trace FILE prints what it would press, and presses nothing. A file is never ",
"played just because it was opened, and takes no hot key."
]
},
{
"url": "privacy.html#stop",
"page": "Privacy and safety",
"title": "Safe to stop",
"text": [
"Escape, held for a third of a second, or the stop hot key ends a play wherever it is. No ",
"key stays down: a second program, keyrill-guard, lets go of what is held if Keyrill dies ",
"while it plays. Files are saved whole or not at all."
]
},
{
"url": "privacy.html#bus",
"page": "Privacy and safety",
"title": "Other programs",
"text": [
"What other programs ask of Keyrill over the session bus plays, records and stops; nothing ",
"there tells what is recorded or kept."
]
},
{
"url": "privacy.html#access",
"page": "Privacy and safety",
"title": "The service keyrill-access",
"text": [
"Installed, it does nothing, and nothing of it runs, until Keyrill asks for it and you ",
"agree with your password. It gives keyboards to read, and one to type on, only to a ",
"program whose session is in front, at this machine and not locked, and takes them back ",
"when that ends. It reads no key itself. Another program of yours may ask in Keyrill's ",
"name. The question says it: Agree only if you have just asked Keyrill for it. Who asked ",
"stands in the journal. A screen locker that tells nobody, such as one started by hand in ",
"sway, is not seen by the service. It does not tell the keyboards of one seat from those of ",
"another: do not install it on a machine with several. More of it for administrators."
]
},
{
"url": "administrators.html",
"page": "For administrators",
"title": "For administrators",
"words": "administrator, admin, install, package, deb, sandbox, preset, default, policy, polkit, xdg_config_dirs, autostart, deploy, cmake, uninstall",
"text": [
"How Keyrill is installed, what can be set for all users, and what of it needs root."
]
},
{
"url": "administrators.html#packages",
"page": "For administrators",
"title": "Packages",
"text": [
"There are two for Debian 12, built from the sources with dpkg-buildpackage -b: package ",
"what it is keyrill all that X11 sessions need, and playing in Wayland sessions ",
"keyrill-wayland-access to record in Wayland sessions; a service of root that asks for a ",
"password Anywhere else it is a folder that runs where it lies, with the libraries of ",
"Debian 12 or newer ones: cmake --preset release && cmake --build --preset release cmake ",
"--install build/release --prefix ~/keyrill && ~/keyrill/bin/keyrill cpack --config ",
"build/release/CPackConfig.cmake makes an archive of that, which may be unpacked and moved ",
"anywhere. The programs find the rest by their own place."
]
},
{
"url": "administrators.html#flatpak",
"page": "For administrators",
"title": "As a Flatpak",
"text": [
"The sources have the manifest of a Flatpak, packaging/flatpak. In its sandbox Keyrill sees ",
"your display and a few services of the session bus; no network, and of your files only its ",
"own and those that you choose. Whoever sees an X display sees all keys that are typed ",
"there, in a sandbox as well. It differs from an installed Keyrill: Macros and settings are ",
"in ~/.var/app/example.orlen.Keyrill. Start Keyrill when I log in is refused: put an entry ",
"with Exec=flatpak run example.orlen.Keyrill into ~/.config/autostart. In Wayland sessions ",
"only what you type into the window Record Here is recorded; sway's hot keys and GNOME's ",
"custom shortcuts are out of reach, and so is the layout in GNOME. Ended by flatpak kill ",
"while it plays, it can leave a key down until the next play. Ended in any other way it ",
"leaves none. It does not look for newer versions."
]
},
{
"url": "administrators.html#presets",
"page": "For administrators",
"title": "Presets for all users",
"text": [
"A setting is looked for in these files, and the first that has it counts: ",
"$XDG_CONFIG_HOME/keyrill/keyrill.conf, by default ~/.config/keyrill/keyrill.conf: the ",
"user's own keyrill/keyrill.conf in each folder of $XDG_CONFIG_DIRS, in their order; by ",
"default /etc/xdg/keyrill/keyrill.conf etc/xdg/keyrill/keyrill.conf of the folder that ",
"Keyrill is installed in, which comes with it; for /usr that is ",
"/etc/xdg/keyrill/keyrill.conf, too Relative folders in these variables are ignored. When a ",
"user closes the preferences, or sets a hot key in them, all that stands there is stored as ",
"his own; presets count until then. [Settings] recordCode=15 recordFlags=1310720 ",
"recordPauses=2 recordPausesLimit=2000 notFirstRun=true key what it sets recordCode, ",
"stopCode, playCode, multiplePlayCode the key of a hot key, by its code recordFlags, ",
"stopFlags, playFlags, multiplePlayFlags its modifiers, added up: Shift 131072, Ctrl ",
"262144, Alt 524288, Super 1048576. 1310720 is Ctrl+Super recordPauses Record pauses: 0 ",
"Never, 1 As typed, 2 At most recordPausesLimit the longest pause then, in milliseconds, ",
"from 100 to 60000 recordModifierKeys Record modifier keys on their own: true or false, as ",
"those below keepHistory Keep the history for the next start checkForUpdatesOnLaunch Check ",
"for updates when Keyrill starts launchOnLogin whether Start Keyrill when I log in is ",
"ticked before a user has closed the preferences, which makes the entry; see Start at ",
"log-in notFirstRun true leaves out the greeting of the first start and the preferences ",
"that follow it"
]
},
{
"url": "administrators.html#log-in",
"page": "For administrators",
"title": "Start at log-in",
"text": [
"The check box writes ~/.config/autostart/example.orlen.Keyrill.desktop. To start Keyrill ",
"for all users, put an entry of that name into /etc/xdg/autostart, or into autostart of ",
"another folder of $XDG_CONFIG_DIRS, whose Exec is the installed program, and preset ",
"launchOnLogin=true beside it. The preferences show what is set, not which entries there ",
"are: where the box is not ticked, a user who closes them gets an entry of his own that ",
"hides the one for all."
]
},
{
"url": "administrators.html#updates",
"page": "For administrators",
"title": "No check for updates",
"text": [
"It is off until a user or a preset ticks it. -DKEYRILL_UPDATE_CHECK=OFF builds Keyrill ",
"without it: the check box, the entry of the menu and the library for the network are not ",
"there. The Debian package is built so."
]
},
{
"url": "administrators.html#access",
"page": "For administrators",
"title": "keyrill-access",
"text": [
"keyrill-access passes keyboards, open for reading, to Keyrill in Wayland sessions, and ",
"presses keys for it. The system bus starts it when it is asked for; it ends when nobody ",
"has anything of it. Installing it changes nothing that runs. man keyrill-access is its ",
"manual page. polkit asks each user for a password: the action ",
"example.orlen.Keyrill.capture is to read keyboards, example.orlen.Keyrill.type to press ",
"keys. To keep all users from it, put a rule into /etc/polkit-1/rules.d/, such as ",
"polkit.addRule(function(action, subject) { if (action.id.indexOf(\"example.orlen.Keyrill.\") ",
"== 0) return polkit.Result.NO; }); Who asked stands in the journal: journalctl -u ",
"keyrill-access From the sources tools/access install installs it and shows before what it ",
"writes; tools/access remove takes all of it away. It does not tell the keyboards of one ",
"seat from those of another, and is not for machines with several. Ended by systemctl stop ",
"keyrill-access it takes back what it has given. If it is killed by SIGKILL it cannot: ",
"whoever was allowed to read could go on until he is logged out. Keyrill itself closes the ",
"keyboards at once and ends its recording."
]
},
{
"url": "administrators.html#manual",
"page": "For administrators",
"title": "This manual elsewhere",
"text": [
"The menu opens the manual of the installation, which works without a network, in the ",
"language that Keyrill speaks as far as it is translated: the translations are in the ",
"folders ar, de, es, fr, ja and ru beside the English pages, and one that is deleted is ",
"English again. -DKEYRILL_DOCUMENTATION_PAGE=URL builds Keyrill with another one."
]
}
];
