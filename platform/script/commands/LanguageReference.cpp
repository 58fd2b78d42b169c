// SPDX-License-Identifier: MIT
#include "platform/script/commands/LanguageReference.h"

#include <string_view>

#include "platform/Parts.h"
#include "platform/script/commands/Command.h"
#include "platform/script/commands/Cookbook.h"
#include "platform/script/commands/KeyTable.h"
#include "platform/script/commands/LanguageNotes.h"

namespace script {
namespace {

constexpr std::string_view firstChapter = "## Lines\n";

constexpr std::string_view statements = R"(<!-- SPDX-License-Identifier: MIT -->
<!-- Printed by `keyrill-script reference`; not to be edited. -->

# Keyrill script

Compatible with AppleScript's keyboard commands: a macro is text that a person can read, compare, edit, loop and branch.
It can press keys, wait, ask and tell, and nothing else. `keyrill-script check FILE` says what is wrong with one, `trace`
prints what it would do, `run` does it, `format` brings it into one layout.

    tell application "System Events"
        repeat with name in {"Ann", "Bob"}
            keystroke name & return
            delay 0.5
        end repeat
        key code 1 using {command down}
    end tell

## Lines

A line holds one statement. `¬` at its end joins it with the next. `--` and `#` begin a comment, `(* *)` enclose one over
lines. Upper and lower case are the same in words and names. A name has letters from A to Z, digits and `_`, and begins with
no digit; `|any characters|` are a name, too. `the` may stand before any noun and means nothing.

## Values

| kind | written |
| --- | --- |
| integer, real | `5`, `0.5`, `1e-3`; beyond 536870911 a whole number becomes real |
| text | `"a"`, with `\"` `\\` `\n` `\r` `\t`; also `return`, `linefeed`, `tab`, `space`, `quote` |
| boolean | `true`, `false` |
| list, record | `{1, "a"}`, `{name:"Ann", age:5}` |
| date | `date "2026-01-31 13:05:09"`, `current date` |
| constant | `command down`, `January`, `missing value`, a class such as `integer` |

`x as text` makes one kind into another: `text`, `integer`, `real`, `number`, `boolean`, `list`, `record`, `date`. Lists
become text with the `text item delimiters` between their items.

## Operators, the tightest first

`-x` · `^` · `*` `/` `÷` `div` `mod` · `+` `-` · `&` · `as` · `<` `≤` `>` `≥` (`is less than`, `comes before`, ...) ·
`=` `≠` (`is`, `is not`, ...), `contains`, `starts with`, `ends with`, `is in` · `not` · `and` · `or`

`&` joins texts, lists or records. `=` never converts, but for whole numbers and reals; the case of letters does not count
unless inside `considering case`.

A command takes all that stands behind it: `count of L > 2` counts the truth of `L > 2`, and `(count of L) > 2` compares the
number. Where the value of a command is compared or calculated with, parentheses stand round the command.

## Elements and properties

`item 2 of L`, `item -1 of L`, `first word of t`, `last paragraph of t`, `some item of L`, `every character of t`,
`items 2 thru 4 of L`, `text 1 thru 3 of t`, `text item 2 of t`, `text from word 2 to word 3 of t`, `x's item 2`.
`length`, `reverse` and `rest` of lists; `beginning` and `end`, to set as well; `id` of a text; the parts of a date; `class`
of anything; the properties of a record by their names. Indices count from 1, or from the end with a minus.
`a reference to item 2 of L` and `a reference to x` lead to an item or a variable; `contents of r` is what is there now, and
can be set.

## Statements

    set NAME to VALUE                 set {a, b} to {b, a}
    set item 2 of L to VALUE          set end of L to VALUE
    copy VALUE to NAME                a copy that shares nothing
    if CONDITION then STATEMENT
    if CONDITION then
        ...
    else if CONDITION then
        ...
    else
        ...
    end if
    repeat ... end repeat             until `exit repeat` or the user stops it
    repeat 3 times
    repeat while CONDITION            repeat until CONDITION
    repeat with i from 1 to 10 by 2
    repeat with x in LIST             x is a reference: compare `contents of x`
    try
        ...
    on error message number n
        ...
    end try
    error "What is wrong" number 500
    on name(a, b)                     called as name(1, 2), inside `tell` as my name(1, 2)
        return a + b
    end name
    on name given size:s              called as name given size:5
    property p : 5                    seen by the whole script; so is what is `global`
    tell application "System Events"  the keyboard commands stand inside
        ...
    end tell
    considering case ... end considering
    ignoring white space and punctuation ... end ignoring

`Escape`, held for 0.3 seconds, or the stop combination ends a script wherever it is, also inside `try`.

The `message` that a script catches is English, whatever language the desktop speaks. People are shown it in their own; what
`error` was given is shown as it was written.

## Commands
)";

/// As a block of Markdown: four blanks before each line.
std::string indented(std::string_view lines) {
    std::string out;
    while (!lines.empty()) out += "    " + std::string(takePart(lines, '\n')) + "\n";
    return out;
}

/// The first paragraph of a manual text shows how the command is written.
std::string section(const Command& command) {
    const std::string_view manual = command.manual;
    const std::size_t blank = manual.find("\n\n");
    std::string out =
        "\n### " + std::string(command.name.spelling() == "clipboard to" ? "set the clipboard"
                                                                         : command.name.spelling());
    out += "\n\n" + indented(manual.substr(0, blank)) + "\n" + std::string(manual.substr(blank + 2)) + "\n\n";
    std::string examples(command.examples);
    constexpr std::string_view lineEnd = "↵";
    for (auto at = examples.find(lineEnd); at != std::string::npos; at = examples.find(lineEnd)) {
        examples.replace(at, lineEnd.size(), "\n");
    }
    return out + indented(examples);
}

std::string chapter(const Recipe& recipe) {
    std::string script(recipe.script);
    for (auto at = script.find('\t'); at != std::string::npos; at = script.find('\t'))
        script.replace(at, 1, "    ");
    return "\n### " + std::string(recipe.title) + "\n\n" + std::string(recipe.words) + "\n\n" +
           indented(script);
}

}  // namespace

std::string languageReference() {
    std::string out(statements);
    const std::size_t place = out.find(firstChapter);
    out.insert(place, firstScript);
    for (const Command* command : commands()) {
        if (!command->manual.empty()) out += section(*command);
    }
    out += "\n## Cookbook\n";
    for (const Recipe& recipe : recipes()) out += chapter(recipe);
    out +=
        "\n## Key codes\n\nThe names are those of a US keyboard; a code is a place, whatever letter is "
        "printed there. ";
    out += "`keyrill-script keys` prints the list.\n\n" + keyTable();
    return out.append(closingNotes);
}

}  // namespace script
