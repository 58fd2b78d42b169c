// SPDX-License-Identifier: MIT
//
// The program keyrill-script as its users see it.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>
#include <ostream>
#include <utility>
#include <vector>

#include "support/Child.h"
#include "support/Programs.h"

namespace {

struct Outcome {
    int status = -1;
    std::string output;
    std::string errors;
    friend bool operator==(const Outcome&, const Outcome&) = default;
};

std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
    return out << "status " << outcome.status << ", output:\n"
               << outcome.output << "errors:\n"
               << outcome.errors;
}

class ToolTest : public testing::Test {
  protected:
    /// Runs the program in the folder that holds "script", with standard input from a file of this name.
    Outcome run(const std::string& arguments, const std::string& input = "/dev/null",
                const std::string& output = "out") {
        const std::string command = "cd " + m_folder.path() + " && exec env -u DISPLAY LC_ALL=" + m_locale +
                                    " " + programs::scriptTool + " " + arguments + " <" + input + " >" +
                                    output + " 2>err";
        Child child({"sh", "-c", command});
        const int status = child.wait();
        return {status, contentOf(m_folder.file("out")), contentOf(m_folder.file("err"))};
    }

    void write(const std::string& content) {
        std::ofstream(m_folder.file("script"), std::ios::binary) << content;
    }

    TemporaryFolder m_folder;
    std::string m_locale = "C.UTF-8";
};

constexpr const char* usage = "Usage: keyrill-script check FILE";

std::string hasNoOption(const std::string& command, const std::string& option) {
    return "keyrill-script: “" + command + "” has no option “" + option +
           "”. “keyrill-script --help” tells which there are.\n";
}

TEST_F(ToolTest, checkSaysNothingOfAGoodScript) {
    write("tell application \"System Events\" to keystroke \"a\"\n");
    EXPECT_EQ(run("check script"), (Outcome{0, "", ""}));
}

TEST_F(ToolTest, checkNamesPlaceMessageAndNumberOfASyntaxError) {
    write(R"(tell application "System Events"
	key code 1
)");
    EXPECT_EQ(run("check script"),
              (Outcome{1, "",
                       "script:3:1: syntax error: Expected “end” but found end of script. (-2741)\n"
                       "Hint: The block that begins in line 1 has no “end” of its own.\n"}));
}

TEST_F(ToolTest, checkWarnsOfExtensionCodes) {
    write(R"(tell application "System Events"
	key code {36, 4279}
end tell
)");
    EXPECT_EQ(
        run("check script"),
        (Outcome{0, "", "script:2:16: warning: Key code 4279 is an extension, which only Keyrill plays.\n"}));
}

TEST_F(ToolTest, tracePrintsWhatWouldBeDone) {
    write(
        R"(tell application "System Events"
	key code 36 using {shift down, command down}
	keystroke "hello"
	delay 0.5
	key down shift
	key up shift
end tell
)");
    const Outcome outcome = run("trace script");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output,
              R"(["key",36,["command","shift"]]
["text","hello",[]]
["delay",0.5]
["keydown","shift",[]]
["keyup","shift",[]]
)");
    EXPECT_EQ(outcome.errors, "");
}

TEST_F(ToolTest, traceEndsAtAnExecutionError) {
    write(R"(tell application "System Events"
	key code 1
	delay "abc"
	key code 2
end tell
)");
    const Outcome outcome = run("trace script");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "[\"key\",1,[]]\n");
    EXPECT_EQ(outcome.errors,
              R"(script:3:2: execution error: Can’t make "abc" into type number. (-1700)
	delay "abc"
	^
Hint: “delay” counts seconds: delay 0.5.
)");
}

TEST_F(ToolTest, traceWaitsForNoPause) {
    write("delay 3600\n");
    EXPECT_EQ(run("trace script").output, "[\"delay\",3600]\n");
}

TEST_F(ToolTest, readsStandardInput) {
    write("delay +");
    EXPECT_EQ(run("check -", "script").errors,
              "-:1:8: syntax error: Expected expression but found end of script. (-2741)\n"
              "delay +\n       ^\n");
}

TEST_F(ToolTest, readsFilesOfOlderEditors) {
    write("tell application \"System Events\" to \xC2\rkeystroke \"\x8E\"\r");
    EXPECT_EQ(run("trace script").output, "[\"text\",\"é\",[]]\n");
}

TEST_F(ToolTest, aFileThatCannotBeReadIsAnError) {
    EXPECT_EQ(run("check missing"), (Outcome{1, "", "keyrill-script: missing: No such file or directory\n"}));
    EXPECT_EQ(run("trace .").errors, "keyrill-script: .: It is a folder; standard input is \"-\"\n");
}

TEST_F(ToolTest, editorsAreToldOfAFileThatCannotBeReadInTheShapeOfOtherErrors) {
    const auto told = [](const std::string& message) {
        return Outcome{1,
                       R"([{"kind":"error","line":1,"column":1,"length":0,"message":")" + message +
                           "\",\"number\":0,\"hint\":\"\"}]\n",
                       ""};
    };
    EXPECT_EQ(run("check --json missing"), told("No such file or directory"));
    EXPECT_EQ(run("check --json 'm\xff\"\\'"), told("No such file or directory"));
    EXPECT_EQ(run("check --json ."), told("It is a folder; standard input is \\\"-\\\""));
    EXPECT_EQ(run("check --json -", "."), told("Is a directory"));
}

TEST_F(ToolTest, aLongWordIsShortenedForPeopleAndEditors) {
    const std::string word(3000000, 'w');
    write("log " + word);
    const std::string begin(100, 'w');
    const Outcome run = this->run("run script");
    EXPECT_EQ(
        run.errors.rfind(
            "script:1:5: execution error: The variable " + begin + "… is not defined. (-2753)\nHint: ", 0),
        0U)
        << run.errors.substr(0, 1000);
    EXPECT_LT(run.errors.size(), 1000U);
    const Outcome checked = this->run("check --json script");
    EXPECT_EQ(checked.output.rfind("[{\"kind\":\"warning\",\"line\":1,\"column\":5,\"length\":3000000,"
                                   "\"message\":\"The variable " +
                                       begin + "… is never set. ",
                                   0),
              0U)
        << checked.output.substr(0, 1000);
    EXPECT_LT(checked.output.size(), 1000U);
}

TEST_F(ToolTest, whatIsNoRegularFileIsRefusedAtOnce) {
    ASSERT_EQ(mkfifo(m_folder.file("pipe").c_str(), 0600), 0);
    for (const std::string file : {"pipe", "/dev/zero", "/proc/self/status"}) {
        EXPECT_EQ(
            run("check " + file),
            (Outcome{1, "",
                     "keyrill-script: " + file + ": It is not a regular file; standard input is \"-\"\n"}));
    }
}

TEST_F(ToolTest, runNeedsADisplayAndSaysSoInOneLine) {
    write("tell application \"System Events\" to keystroke \"a\"\n");
    const Outcome outcome = run("run script");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors.rfind("keyrill-script: ", 0), 0U) << outcome.errors;
    EXPECT_EQ(outcome.errors.find('\n'), outcome.errors.size() - 1) << outcome.errors;
}

TEST_F(ToolTest, runNeedsNoDisplayWhereNothingIsPressed) {
    EXPECT_EQ(run("run -e '1 + 1'"), (Outcome{0, "2\n", ""}));
    EXPECT_EQ(run("run -e 'delay 0.001' -e 'log 5' -e '\"a\" & 1'"), (Outcome{0, "\"a1\"\n", "(*5*)\n"}));
    EXPECT_EQ(run("run -e '1 / 0'").status, 1);
    const Outcome pressed = run("run -e 'log 1' -e 'beep' -e 'log 2'");
    EXPECT_EQ(pressed.status, 1);
    EXPECT_EQ(pressed.errors.rfind("(*1*)\nkeyrill-script: ", 0), 0U) << pressed.errors;
    EXPECT_EQ(pressed.errors.find("(*2*)"), std::string::npos);
}

TEST_F(ToolTest, checkTellsEditorsWhereAndHowLong) {
    write("set é to 1\ndelay pause\n");
    EXPECT_EQ(
        run("check --json script"),
        (Outcome{
            1,
            "[{\"kind\":\"error\",\"line\":1,\"column\":5,\"length\":1,\"message\":\"Expected expression "
            "but found unknown token.\",\"number\":-2741,\"hint\":\"\"}]\n",
            ""}));
    write("key code 5\n");
    EXPECT_EQ(
        run("check --json script").output,
        "[{\"kind\":\"error\",\"line\":1,\"column\":5,\"length\":4,\"message\":\"Expected end of line but "
        "found "
        "identifier.\",\"number\":-2741,\"hint\":\"The keyboard commands stand inside “tell application "
        "\\\"System Events\\\"” … “end tell”.\"}]\n");
    write("delay pause\nbeep length\n");
    EXPECT_EQ(
        run("check --json script"),
        (Outcome{
            0,
            "[{\"kind\":\"warning\",\"line\":1,\"column\":7,\"length\":5,\"message\":\"The variable pause is "
            "never set. Text stands between straight quotes: \\\"pause\\\".\"},\n"
            "{\"kind\":\"warning\",\"line\":2,\"column\":6,\"length\":6,\"message\":\"The variable length is "
            "never set. Text stands between straight quotes: \\\"length\\\".\"}]\n",
            ""}));
    EXPECT_EQ(run("check --json -e 'beep'"), (Outcome{0, "[]\n", ""}));
    EXPECT_EQ(run("check --json -e 'delay'  -e '('").output.find("\"length\":0,") == std::string::npos,
              false);
    EXPECT_EQ(run("trace --json script").errors, hasNoOption("trace", "--json"));
}

TEST_F(ToolTest, aScriptIsTracedSoOftenAndAtThatSpeed) {
    EXPECT_EQ(run("trace --times 2 --speed 4 -e 'delay 2' -e 'beep'"),
              (Outcome{0, "[\"delay\",0.5]\n[\"beep\",1]\n[\"delay\",0.5]\n[\"beep\",1]\n", ""}));
    write("delay 1\n");
    EXPECT_EQ(run("trace --speed=0.25 script").output, "[\"delay\",4]\n");
    EXPECT_EQ(run("trace --times=2 -- script").output, "[\"delay\",1]\n[\"delay\",1]\n");
    EXPECT_EQ(run("trace script --times 1").output, "[\"delay\",1]\n");
}

TEST_F(ToolTest, timesAndSpeedsThatCannotBeAreTold) {
    for (const std::string command : {"run", "trace"}) {
        EXPECT_EQ(run(command + " --times 0 -e 'delay 0'"),
                  (Outcome{1, "",
                           "keyrill-script: --times 0 is not how often a script can be played. It is a whole "
                           "number from 1 on, or until-stopped.\n"}));
        EXPECT_EQ(run(command + " --speed 5 -e 'delay 0'"),
                  (Outcome{1, "",
                           "keyrill-script: --speed 5 is not how fast a script can be played. It is a number "
                           "from 0.25 to 4.\n"}));
    }
    EXPECT_EQ(run("trace --times until-stopped -e 'delay 0'"),
              (Outcome{1, "", "keyrill-script: Nobody can stop a trace. Give --times a number.\n"}));
    EXPECT_EQ(run("check --times 2 -e 'beep'"), (Outcome{1, "", hasNoOption("check", "--times")}));
    EXPECT_EQ(run("format --speed 2 -e 'beep'"), (Outcome{1, "", hasNoOption("format", "--speed")}));
    EXPECT_EQ(run("run --tunes 2 -e 'beep'"), (Outcome{1, "", hasNoOption("run", "--tunes")}));
    for (const char* arguments : {"run --times", "run -e 'beep' --speed"}) {
        const Outcome outcome = run(arguments);
        EXPECT_EQ(outcome.status, 1) << arguments;
        EXPECT_EQ(outcome.errors.rfind(usage, 0), 0U) << arguments;
    }
}

TEST_F(ToolTest, theRunThatFailsIsTheLastAndWarningsAreToldOnce) {
    EXPECT_EQ(run("run --times 3 -e 'log 1' -e 'error \"no\"'"),
              (Outcome{1, "", "(*1*)\n-e:2:1: execution error: no (-2700)\nerror \"no\"\n^\n"}));
    EXPECT_EQ(run("run --times 3 -e '1 + 1'"), (Outcome{0, "2\n", ""}));
    EXPECT_EQ(run("trace --times 3 -e 'tell app \"System Events\" to key code (60 + 6)'"),
              (Outcome{0, "", "-e:1:29: warning: Key code 66 has no key; nothing is pressed.\n"}));
}

TEST_F(ToolTest, keysPrintsTheTable) {
    const std::string keys = run("keys").output;
    EXPECT_EQ(keys.rfind("0\tA\n1\tS\n", 0), 0U);
    EXPECT_NE(keys.find("\n36\tReturn\n"), std::string::npos);
    EXPECT_EQ(keys.find("\n66\t"), std::string::npos);
    EXPECT_EQ(run("keys --press").errors.rfind("keyrill-script: ", 0), 0U);
    EXPECT_EQ(run("keys 5").errors.rfind(usage, 0), 0U);
}

TEST_F(ToolTest, anUnknownCommandShowsTheUsage) {
    for (const char* arguments : {"", "check", "check a b", "keys a", "reference a"}) {
        const Outcome outcome = run(arguments);
        EXPECT_EQ(outcome.status, 1) << arguments;
        EXPECT_EQ(outcome.errors.rfind(usage, 0), 0U) << arguments;
    }
    const Outcome unknown = run("play script");
    EXPECT_EQ(unknown.status, 1);
    EXPECT_EQ(unknown.errors.rfind(std::string("keyrill-script: There is no command “play”.\n") + usage, 0),
              0U);
}

TEST_F(ToolTest, linesCanBeGivenInsteadOfAFile) {
    EXPECT_EQ(run("trace -e 'set x to 1' -e 'delay x + 1'").output, "[\"delay\",2]\n");
    EXPECT_EQ(
        run("check -e 'delay +'").errors,
        "-e:1:8: syntax error: Expected expression but found end of line. (-2741)\ndelay +\n       ^\n");
    EXPECT_EQ(run("trace -e").errors.rfind(usage, 0), 0U);
}

TEST_F(ToolTest, formatPrintsOneLayout) {
    write("if true then\ndelay 1\nend");
    EXPECT_EQ(run("format script").output, "if true then\n\tdelay 1\nend\n");
    write("if");
    EXPECT_EQ(run("format script").status, 1);
}

TEST_F(ToolTest, theLogGoesToStandardErrors) {
    EXPECT_EQ(run("trace -e 'log {1, 2}'"), (Outcome{0, "", "(*{1, 2}*)\n"}));
}

TEST_F(ToolTest, theCaretStandsBelowWideAndCombinedCharacters) {
    write("\tset x to \"日本😀e\xcc\x81\" & foo\n");
    EXPECT_EQ(run("trace script"),
              (Outcome{1, "",
                       "script:1:21: execution error: The variable foo is not defined. (-2753)\n"
                       "\tset x to \"日本😀e\xcc\x81\" & foo\n"
                       "\t                     ^\n"
                       "Hint: A variable is set before it is used: set foo to … Text stands between straight "
                       "quotes: \"foo\".\n"}));
}

TEST_F(ToolTest, aLineIsShownWithoutControlCharacters) {
    write("delay 1\x1b[31m");
    EXPECT_EQ(run("check script").errors,
              "script:1:8: syntax error: Expected end of line but found unknown token. (-2741)\n"
              "delay 1 [31m\n"
              "       ^\n");
}

TEST_F(ToolTest, nothingThatAScriptSaysActsOnTheTerminal) {
    write("delay |\x1b]0;p\x07\xc2\x9b|\nlog \"\x1b[1m\xc2\x85\"\nerror \"\x1b[31m\xc2\x9b!m…\"\n");
    for (const char* command : {"check", "trace", "run"}) {
        const std::string errors = run(command + std::string(" script")).errors;
        EXPECT_NE(errors, "") << command;
        for (const char* const control : {"\x1b", "\x07", "\xc2\x85", "\xc2\x9b"})
            EXPECT_EQ(errors.find(control), std::string::npos) << command << ": " << errors;
    }
    write("error \"\x1b[31m\xc2\x9b!m…\"\n");
    EXPECT_EQ(run("run script").errors,
              "script:1:1: execution error:  [31m !m… (-2700)\nerror \" [31m !m…\"\n^\n");
}

/// Else it could be read as another than it is. Isolates, which messages have, too, stay with what they are
/// in.
TEST_F(ToolTest, nothingThatAScriptSaysTurnsTheRestOfTheLineRound) {
    for (const char* const turning : {"\u202A", "\u202B", "\u202C", "\u202D", "\u202E"}) {
        write(std::string("error \"a") + turning + "b \u2067c\u2069\"\n");
        EXPECT_EQ(run("run script").errors,
                  "script:1:1: execution error: a b \u2067c\u2069 (-2700)\nerror \"a b \u2067c\u2069\"\n^\n");
    }
    write("error \"a\u2069b\u2067c\"\n");
    EXPECT_EQ(run("run script").errors,
              "script:1:1: execution error: a b\u2067c\u2069 (-2700)\nerror \"a b\u2067c\"\u2069\n^\n");
}

TEST_F(ToolTest, aFileThatIsNoUtf8IsWarnedOf) {
    write("log 1\nlog \"caf\xe9\"\n");
    const std::string warning =
        "script:2:9: warning: This is no UTF-8, so the whole file is taken for Mac Roman. Save it as "
        "UTF-8.\n";
    EXPECT_EQ(run("check script"), (Outcome{0, "", warning}));
    EXPECT_EQ(run("run script"), (Outcome{0, "", warning + "(*1*)\n(*cafÈ*)\n"}));
    EXPECT_EQ(run("format script"), (Outcome{0, "log 1\nlog \"cafÈ\"\n", warning}));
    EXPECT_EQ(run("check --json script"),
              (Outcome{0,
                       "[{\"kind\":\"warning\",\"line\":2,\"column\":9,\"length\":1,\"message\":\"This is no "
                       "UTF-8, so the whole file is taken for Mac Roman. Save it as UTF-8.\"}]\n",
                       ""}));
    // Its characters are counted as the file is taken.
    write("log \"\xc3\xa9\xe9\"\n");
    EXPECT_EQ(run("check script").errors.substr(0, 12), "script:1:8: ");
    // A mark says what it is.
    write("\xff\xfe" + std::string("l\0o\0g\0 \0\xe9\0", 10));
    EXPECT_EQ(run("check script").errors.find("Mac Roman"), std::string::npos);
}

TEST_F(ToolTest, whatIsAskedOfADesktopFailsWithoutOne) {
    for (const char* script :
         {"exists application \"F\"", "application \"F\" is running", "tell application \"F\" to activate",
          R"(tell application "System Events" to frontmost of process "F")",
          "repeat until application \"F\" is running\ndelay 0.01\nend repeat"}) {
        write(script);
        const Outcome outcome = run("run script");
        EXPECT_EQ(outcome.status, 1) << script;
        EXPECT_EQ(outcome.output, "") << script;
        EXPECT_EQ(outcome.errors.rfind("keyrill-script: The X server", 0), 0U) << outcome.errors;
    }
}

TEST_F(ToolTest, whatAPropertyHoldsIsNotKeptForTheNextRun) {
    EXPECT_EQ(run("trace --times 2 -e 'property L : {}' -e 'set end of L to 1' -e 'delay count of L'").output,
              "[\"delay\",1]\n[\"delay\",1]\n");
}

TEST_F(ToolTest, theValueOfAFileIsNotPrinted) {
    write("log \"a\"\n1 + 1\n");
    EXPECT_EQ(run("run script"), (Outcome{0, "", "(*a*)\n"}));
}

TEST_F(ToolTest, aScriptThatIsTooLongIsRefusedByEachCommand) {
    write(std::string(std::size_t{17} << 20U, ' '));
    const Outcome checked = run("check script");
    EXPECT_EQ(checked.status, 1);
    EXPECT_NE(checked.errors, "");
    EXPECT_EQ(run("format script"), checked);
    EXPECT_EQ(run("trace script"), checked);
}

TEST_F(ToolTest, aFullDeviceIsAnError) {
    for (const char* arguments : {"trace -e 'delay 1'", "format -e 'delay 1'", "reference", "--help"}) {
        const Outcome outcome = run(arguments, "/dev/null", "/dev/full");
        EXPECT_EQ(outcome.status, 1) << arguments;
        EXPECT_EQ(outcome.errors, "keyrill-script: Standard output cannot be written.\n");
    }
}

TEST_F(ToolTest, optionsAreNoFilesButBehindTwoMinusSigns) {
    EXPECT_EQ(run("trace -x"), (Outcome{1, "", hasNoOption("trace", "-x")}));
    write("delay 1\n");
    EXPECT_EQ(run("trace -- script").output, "[\"delay\",1]\n");
    EXPECT_EQ(run("trace -- -none").errors, "keyrill-script: -none: No such file or directory\n");
}

TEST_F(ToolTest, helpAndVersionGoToStandardOutput) {
    for (const char* arguments : {"--help", "-h", "trace --help", "trace -h"}) {
        const Outcome help = run(arguments);
        EXPECT_EQ(help.status, 0) << arguments;
        EXPECT_EQ(help.output.rfind(usage, 0), 0U) << arguments;
    }
    const Outcome version = run("--version");
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.output.rfind("keyrill-script ", 0), 0U);
}

TEST_F(ToolTest, speaksTheLanguageOfTheUser) {
    m_locale = "de_DE.UTF-8";
    EXPECT_EQ(run("--help").output.rfind("Aufruf: keyrill-script check DATEI", 0), 0U);
    EXPECT_EQ(run("trace --times until-stopped -e 'delay 0'").errors,
              "keyrill-script: Ein trace lässt sich nicht anhalten. Geben Sie bei --times eine Zahl an.\n");
    write("tell application \"System Events\"\n\tkey code 1\n");
    EXPECT_EQ(run("check script").errors,
              "script:3:1: syntax error: Erwartet wurde „end“, gefunden wurde das Ende des Skripts. (-2741)\n"
              "Hinweis: Der Block, der in Zeile 1 beginnt, hat kein eigenes „end“.\n");
    EXPECT_EQ(run("trace -e 'delay 1.5' -e 'log 0.25'"), (Outcome{0, "[\"delay\",1.5]\n", "(*0.25*)\n"}));
}

/// What of it machines read has no words: the kind, the place, the number.
TEST_F(ToolTest, tellsAnErrorInTheLanguageOfTheUserWithItsNumber) {
    const std::vector<std::pair<std::string, std::string>> told = {
        {"ar_EG", "لا يمكن قسمة \u20681\u2069 على صفر."},
        {"de_DE", "1 kann nicht durch null geteilt werden."},
        {"es_ES", "No se puede dividir 1 entre cero."},
        {"fr_FR", "Impossible de diviser 1 par zéro."},
        {"ja_JP", "1 を 0 で割ることはできません。"},
        {"ru_RU", "Нельзя разделить 1 на ноль."}};
    for (const auto& [language, message] : told) {
        m_locale = language + ".UTF-8";
        const std::string line = "-e:1:3: execution error: " + message + " (-2701)\n1 / 0\n  ^\n";
        EXPECT_EQ(run("run -e '1 / 0'"), (Outcome{1, "", line})) << language;
    }
    m_locale = "de_DE.UTF-8";
    EXPECT_EQ(run("check --json -e 'key code 5'").output,
              "[{\"kind\":\"error\",\"line\":1,\"column\":5,\"length\":4,\"message\":\"Erwartet wurde das "
              "Zeilenende, gefunden wurde ein Bezeichner.\",\"number\":-2741,\"hint\":\"Die Tastaturbefehle "
              "stehen innerhalb von „tell application \\\"System Events\\\"“ … „end tell“.\"}]\n");
}

TEST_F(ToolTest, aScriptReadsItsErrorsInEnglishWhateverTheUserSpeaks) {
    m_locale = "ru_RU.UTF-8";
    EXPECT_EQ(run("run -e 'try' -e '1 / 0' -e 'on error m number n' -e 'return m & n' -e 'end try'").output,
              "\"Can’t divide 1 by zero.-2701\"\n");
    EXPECT_EQ(run("run -e 'error \"Ой\" number 5'").errors,
              "-e:1:1: execution error: Ой (5)\nerror \"Ой\" number 5\n^\n");
}

}  // namespace
