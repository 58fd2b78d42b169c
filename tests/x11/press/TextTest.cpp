// SPDX-License-Identifier: MIT
#include <signal.h>

#include <algorithm>

#include "display/Hands.h"
#include "platform/Modifiers.h"
#include "support/Keys.h"
#include "x11/press/InjectorTest.h"

namespace {

constexpr const char* record = "_KEYRILL_BOUND_KEYS";

/// What a terminal gets of texts.
class TextTest : public InjectorTest {
  protected:
    /// Types the text into a terminal; what arrives there.
    std::string typedInto(const std::string& text) {
        terminal();
        const auto result = run({.texts = {text}})->text(text, 0);
        EXPECT_EQ(wordsOf(result), "going");
        return terminal().typed(text.size());
    }
    Terminal& terminal() {
        if (!m_terminal) m_terminal.emplace(display());
        return *m_terminal;
    }
    /// The server's whole keymap as text.
    std::string keymap() const { return command({"xkbcomp", display(), "-"}) + command({"xmodmap", "-pke"}); }

  private:
    std::optional<Terminal> m_terminal;
};

TEST_F(TextTest, allOfAsciiArrives) {
    std::string text;
    for (char character = ' '; character <= '~'; ++character) text += character;
    EXPECT_EQ(typedInto(text + "\t\n"), text + "\t\n");
}

TEST_F(TextTest, lineEndsOfAnyKindAreOneReturnEach) {
    terminal();
    ASSERT_TRUE(run()->text("a\r\nb\nc\rd\n\ne", 0));
    EXPECT_EQ(terminal().typed(10), "a\nb\nc\nd\n\ne");
}

TEST_F(TextTest, charactersOfNoLayoutArrive) {
    EXPECT_EQ(typedInto("née 5 € 漢字 😀 ß жук né"), "née 5 € 漢字 😀 ß жук né");
}

TEST_F(TextTest, theGermanLayoutTypesItsOwnCharacters) {
    command({"setxkbmap", "de"});
    const std::string before = keymap();
    EXPECT_EQ(typedInto("Zü ÄÖß @ € {[]} \\ ~ | µ"), "Zü ÄÖß @ € {[]} \\ ~ | µ");
    EXPECT_EQ(keymap(), before);
}

TEST_F(TextTest, bothGroupsOfTwoLayoutsAreUsedFromEither) {
    command({"setxkbmap", "us,ru"});
    const std::string before = keymap();
    const std::string text = "Hello Привет, two два 2\n";
    EXPECT_EQ(typedInto(text), text);
    EXPECT_EQ(probe().group(), 0);
    const Hands user(display());
    user.lockGroup(1);
    user.finish();
    ASSERT_EQ(probe().group(), 1);
    ASSERT_TRUE(run()->text(text, 0));
    EXPECT_EQ(terminal().typed(2 * text.size()), text + text);
    EXPECT_EQ(probe().group(), 1);
    EXPECT_EQ(keymap(), before);
}

TEST_F(TextTest, capsLockIsOutOfTheWayAndOnAgain) {
    command({"xdotool", "key", "Caps_Lock"});
    EXPECT_EQ(typedInto("Hello é漢 WORLD"), "Hello é漢 WORLD");
    EXPECT_EQ(probe().locked(), xmask::capsLock);
}

TEST_F(TextTest, numLockChangesNothing) {
    command({"xdotool", "key", "Num_Lock"});
    EXPECT_EQ(typedInto("123 .,+-*/= é"), "123 .,+-*/= é");
}

TEST_F(TextTest, modifiersAreHeldOverEachCharacter) {
    terminal();
    ASSERT_TRUE(run()->text("ab", modifier::control));
    ASSERT_TRUE(run()->text("c", modifier::shift));
    EXPECT_EQ(terminal().typed(3),
              "\x01\x02"
              "C");
}

TEST_F(TextTest, aTextOf30000CharactersArrivesWhole) {
    std::string text;
    for (int line = 0; line < 500; ++line) {
        text += "The Quick brown fox jumps over 13 lazy dogs; again & again\n";
    }
    EXPECT_EQ(typedInto(text), text);
}

TEST_F(TextTest, moreDifferentCharactersThanUnusedKeysArriveWhole) {
    const std::string text = ideographs(300);
    EXPECT_EQ(typedInto(text), text);
}

TEST_F(TextTest, manyNewCharactersAreOneChangeOfTheKeymap) {
    CoreClient client(display());
    const int before = client.mappingChanges();
    const std::string text = ideographs(60);
    auto session = run({.texts = {text}});
    ASSERT_TRUE(session->text(text, 0));
    ASSERT_TRUE(session->text(text, 0));
    session.reset();
    const int once = client.mappingChanges() - before;
    EXPECT_GE(once, 1);
    EXPECT_LE(once, 4);
    ASSERT_TRUE(run()->text(text, 0));
    EXPECT_EQ(client.mappingChanges() - before, once);
}

TEST_F(TextTest, theKeymapIsAsBeforeWhenTheProgramHasEnded) {
    const std::string before = keymap();
    const std::string text = ideographs(70) + "é";
    EXPECT_EQ(typedInto(text), text);
    EXPECT_NE(keymap(), before);
    EXPECT_TRUE(probe().hasProperty(record));
    program().end();
    EXPECT_EQ(keymap(), before);
    EXPECT_FALSE(probe().hasProperty(record));
}

/// As it is when the program could not take anything back.
TEST_F(TextTest, whatAKilledProgramHasLeftBoundIsTakenBackByTheNext) {
    const auto symbols = [this] { return command({"xmodmap", "-pke"}); };
    const std::string before = symbols();
    const std::string text = ideographs(1);
    EXPECT_EQ(typedInto(text), text);
    const std::string bound = symbols();
    const std::string property = command({"xprop", "-root", record});
    const std::string numbers = property.substr(property.find('=') + 2);
    program().end();
    ASSERT_EQ(symbols(), before);
    command({"xmodmap", "-e", "keycode " + numbers.substr(0, numbers.find(',')) + " = U4E00"});
    command({"xprop", "-root", "-f", record, "32c", "-set", record, numbers});
    ASSERT_EQ(symbols(), bound);
    ASSERT_TRUE(probe().hasProperty(record));
    program().begin();
    run();
    EXPECT_EQ(symbols(), before);
    EXPECT_FALSE(probe().hasProperty(record));
}

TEST_F(TextTest, theTextTypedLastArrivesThoughTheProgramEndsAtOnce) {
    terminal();
    ASSERT_TRUE(run()->text("漢字é", 0));
    program().end();
    EXPECT_EQ(terminal().typed(8), "漢字é");
}

TEST_F(TextTest, whatCannotBeTypedBeforeAProgramReadsIsTold) {
    program().end();
    program().begin(std::chrono::milliseconds(300));
    terminal();
    ASSERT_EQ(kill(terminal().pid(), SIGSTOP), 0);
    const std::string typed = ideographs(60);
    ASSERT_TRUE(run()->text(typed, 0));
    EXPECT_EQ(wordsOf(run()->text("ae" + ideographs(90).substr(typed.size()), 0)),
              "The program that is typed into reads nothing; not typed: "
              "\"ae\u4E3C\u4E3D\u4E3E\u4E3F\u4E40\u4E41\u4E42\u4E43\u4E44\u4E45\u4E46\u4E47\u4E48"
              "\u4E49\u4E4A\u4E4B\u4E4C\u4E4D...\".");
    EXPECT_EQ(wordsOf(program().injector().awaitReaders()),
              "The program that was typed into has not read all of it.");
    ASSERT_EQ(kill(terminal().pid(), SIGCONT), 0);
    EXPECT_EQ(wordsOf(program().injector().awaitReaders()), "going");
    EXPECT_EQ(terminal().typed(typed.size()), typed);
}

TEST_F(TextTest, aKeymapSetByTheUserForgetsWhatWasBound) {
    EXPECT_EQ(typedInto("é漢"), "é漢");
    command({"setxkbmap", "fr"});
    const std::string before = keymap();
    ASSERT_TRUE(run()->text("é漢字", 0));
    EXPECT_EQ(terminal().typed(13), "é漢é漢字");
    program().end();
    EXPECT_EQ(keymap(), before);
}

TEST_F(TextTest, aLayoutThatIsSetJustBehindATextIsToldIfItMayHaveSpoiltIt) {
    const auto session = run();
    ASSERT_TRUE(session->text("yz é!", 0));
    command({"setxkbmap", "de"});
    EXPECT_EQ(wordsOf(session->text("a", 0)),
              "The keyboard layout was changed while text was typed, which may have arrived as something "
              "else: \"yz é!\".");
}

TEST_F(TextTest, aLayoutThatTypesTheSameSpoilsNothing) {
    terminal();
    const auto session = run();
    ASSERT_TRUE(session->text("abc!", 0));
    command({"setxkbmap", "de"});
    EXPECT_EQ(wordsOf(session->text("xyz", 0)), "going");
    EXPECT_EQ(terminal().typed(7), "abc!xyz");
}

TEST_F(TextTest, keyboardsOfDifferentLayoutsKeepTheirOwn) {
    std::string device = command({"xinput", "list", "--id-only", "Xvfb keyboard"});
    std::erase(device, '\n');
    command({"setxkbmap", "-device", device, "de"});
    const auto german = [&] { return command({"xkbcomp", "-i", device, display(), "-"}); };
    const std::string before = german();
    ASSERT_NE(before.find("odiaeresis"), std::string::npos);
    EXPECT_EQ(typedInto("z; Ã© æ¼¢"), "z; Ã© æ¼¢");
    const std::string during = german();
    EXPECT_NE(during.find("odiaeresis"), std::string::npos);
    EXPECT_NE(during.find("ISO_Level3_Shift"), std::string::npos);
    program().end();
    EXPECT_EQ(german(), before);
}

TEST_F(TextTest, aTextThatIsNotUtf8IsAnErrorAndTypesNothing) {
    EXPECT_EQ(wordsOf(run()->text("ab\xC3(", 0)), "The text to type is not UTF-8 at byte 3.");
}

TEST_F(TextTest, aCharacterThatNoKeyCanHaveIsNamed) {
    terminal();
    EXPECT_EQ(wordsOf(run()->text("ab\x01", 0)),
              "The character U+0001 cannot be typed with this keyboard layout.");
    EXPECT_EQ(wordsOf(run()->text("c", 0)), "going");
    EXPECT_EQ(terminal().typed(1), "c");
}

TEST_F(TextTest, aMacroOf2000StrokesArrivesWhole) {
    std::string expected;
    terminal();
    const auto session = run();
    const std::vector<std::pair<std::uint32_t, char>> keys = {{0, 'a'},  {1, 's'},  {2, 'd'},   {3, 'f'},
                                                              {18, '1'}, {49, ' '}, {36, '\n'}, {12, 'q'}};
    for (std::size_t index = 0; index < 2000; ++index) {
        const auto& [code, character] = keys[index % keys.size()];
        ASSERT_TRUE(session->stroke(code, 0));
        expected += character;
    }
    EXPECT_EQ(terminal().typed(2000), expected);
}

}  // namespace
