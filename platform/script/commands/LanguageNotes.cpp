// SPDX-License-Identifier: MIT
#include "platform/script/commands/LanguageNotes.h"

namespace script {

const std::string_view firstScript = R"(## The first script, in five steps

1. Open an editor and write these three lines. How far they are indented means nothing.

       tell application "System Events"
           keystroke "Hello" & return
       end tell

2. Save them as `hello.keyrill`.
3. Ask whether they are right: `keyrill-script check hello.keyrill` says nothing where they are. `keyrill-script trace
   hello.keyrill` prints what would be done.
4. Put the cursor into another window within three seconds of `sleep 3; keyrill-script run hello.keyrill`, and the text is
   typed there.
5. For a hot key, load the file into Keyrill (Load Macro... in its menu) and press the combination of Play, Ctrl+Super+P
   unless the preferences say another.

A text is typed with `keystroke`, and any key pressed by its number with `key code`: see the table of key codes, or
let `keyrill-script keys --press` tell the number of the next key that you press. The cookbook has more to take and change.

## The signs of the examples

`=> VALUE` behind an example is what its last statement gives, `-> EVENTS` what it does, as `keyrill-script trace` prints
it, and `=! NUMBER MESSAGE` the error that it ends with. Words in capitals stand for something of yours; what is in square
brackets may be left out, and of words with `|` between them one is taken.

## Signs that keyboards lack

| sign | or |
| --- | --- |
| `≤` `≥` | `<=` `>=`, `is less than or equal to`, `is greater than or equal to` |
| `≠` | `/=`, `is not` |
| `÷` | `/` |
| `¬` at the end of a line | a longer line: there is no other form |

)";

const std::string_view closingNotes = R"(
### Codes of a recorded macro

A code above 511 is a key and how it was typed, added up. Recordings have such codes where the place alone does not tell what
was typed; only Keyrill plays them, and `keyrill-script check` says so.

| added | in hexadecimal | the key was typed |
| --- | --- | --- |
| 512 | 0x200 | with the chooser of the third level held, AltGr on most keyboards |
| 1024 | 0x400 | with the chooser of the fifth level held; 1536 is both |
| 2048 | 0x800 | under Caps Lock, where nothing but the lock makes its letter, as `Í` on the Czech row of digits |
| 8192 to 32768 | 0x2000 to 0x8000 | in the first to the fourth layout of the list, whichever is in force otherwise |

4096 (0x1000) begins the keys that have no number of their own: 4096 and the key's number in the Linux kernel, up to 247, as
4279 for F13. Modifiers are no part of a code; they stand behind `using`, so that `shift down` is also what Caps Lock did to a
letter from A to Z.

    tell application "System Events" to key code 524 -> ["key",524,[]]
    tell application "System Events" to key code 16896 using shift down -> ["key",16896,["shift"]]

## Limits

| what | at most |
| --- | --- |
| a script | 16 MiB, 200 levels of nesting, 32 levels of `tell` |
| a text | 16 MiB |
| a list | 100,000 items |
| a record, a handler | 1,000 properties, 1,000 parameters |
| whole numbers | ±536,870,911; beyond, they become reals with 12 digits in text |
| handlers that call one another | 1,000 deep |
| all values of a run together | 256 MiB |
| key codes | 0 to 65535; those without a key press nothing |

## Error numbers

| number | when |
| --- | --- |
| -128 | the cancel button of a dialog, or the script was stopped; the latter cannot be caught |
| -108 | a text, a list or all values together are too large |
| -1700 | a value cannot be made into what is needed there |
| -1701, -1721 | a handler was called with other parameters than it has |
| -1708 | there is no handler of that name; inside `tell` one's own are called with `my` |
| -1712 | something took too long |
| -1728 | there is no such item, property or application |
| -2700 | `error` without a number of its own |
| -2701, -2702 | a division by zero; a number that is too large, or a power that is no number, as `(-1) ^ 0.5` |
| -2706 | handlers call one another too deeply |
| -2720, -2754 | one thing declared in two ways |
| -2741 | the script does not compile |
| -2750 to -2752 | a parameter, property or handler given twice |
| -2753 | a variable that was never set |
| -2755, -2760 | `exit repeat` outside of a loop; too many levels of `tell` |
| -2763 | a value was needed, and none came |
| -10000, 1002 | the desktop refused a step; it allows no keys to be pressed |
| -10006 | this cannot be set |

## What is not there, and why

Macros are passed on as text, and nobody should have to read one for fear of it. So there is no `do shell script`, no `run
script`, `load script` or `store script`, no `open location`, no reading or writing of files, no network, no mouse and no
looking into windows (`click`, `menu item`, `UI elements`): a macro presses keys, waits, asks, and brings windows to the
front. To start a program press the keys that start it on your desktop.

Applications have no dictionaries of their own here: `tell application "Firefox"` knows `activate`, `running` and
`frontmost`, and nothing else. Raw codes (`«event ...»`), script objects, `whose` but for processes, `choose file`,
`path to` and `say` are left out. `use` lines are read and mean nothing. What a property holds is not kept from one
run to the next. Dates are written in one form, whatever the locale.
)";

}  // namespace script
