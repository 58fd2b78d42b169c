// SPDX-License-Identifier: MIT
#include "library/MacroLibrary.h"

#include "library/LibraryTest.h"

namespace {

class MacroLibraryTest : public LibraryTest {};

constexpr PlayedAt noon{std::chrono::seconds(43200)};
/// Twice as fast.
constexpr PlayOptions twice{.times = {}, .speed = 2};

TEST_F(MacroLibraryTest, isEmptyUntilTheFolderHasBeenRead) {
    folder().userWrites("b.keyrill", "b");
    folder().userWrites("group/a.keyrill", "a");
    library.open();
    EXPECT_FALSE(library.isRead());
    EXPECT_EQ(paths(), Paths{});
    EXPECT_EQ(told.size(), 0U);
    folder().deliver();
    EXPECT_TRUE(library.isRead());
    EXPECT_EQ(paths(), (Paths{"b.keyrill", "group/a.keyrill"}));
    EXPECT_EQ(told,
              (std::vector<LibraryChanges>{{.isFirst = true, .appeared = {"b.keyrill", "group/a.keyrill"}}}));
}

TEST_F(MacroLibraryTest, readsNoTextAndMakesNoFolder) {
    folder().userWrites("a.keyrill", "a");
    open();
    EXPECT_EQ(platform().journal.of({"readFile", "prepareFolder"}), Journal::Lines{});
    EXPECT_EQ(library.text("a.keyrill").value(), "a");
}

TEST_F(MacroLibraryTest, tellsWhyATextCannotBeRead) {
    open();
    const std::string file = std::string(FakeMacroFiles::usualFolder) + "/a.keyrill";
    EXPECT_EQ(library.text("a.keyrill").error().message,
              "The file " + file + " cannot be read: No such file or directory");
}

TEST_F(MacroLibraryTest, followsTheFolder) {
    folder().userWrites("b.keyrill", "b");
    folder().userWrites("d.keyrill", "d");
    open();
    folder().userWrites("c.keyrill", "c");
    folder().userWrites("a.keyrill", "a");
    folder().userWrites("d.keyrill", "another text");
    folder().userRemoves("b.keyrill");
    folder().deliver();
    EXPECT_EQ(paths(), (Paths{"a.keyrill", "c.keyrill", "d.keyrill"}));
    EXPECT_EQ(told, (std::vector<LibraryChanges>{{.appeared = {"a.keyrill", "c.keyrill"},
                                                  .gone = {"b.keyrill"},
                                                  .changed = {"d.keyrill"}}}));
}

TEST_F(MacroLibraryTest, twoThatDifferByCaseAreTwo) {
    folder().userWrites("hello.keyrill", "small");
    folder().userWrites("Hello.keyrill", "large");
    records().put("Hello.keyrill", {{"times", "2"}});
    open();
    EXPECT_EQ(paths(), (Paths{"Hello.keyrill", "hello.keyrill"}));
    EXPECT_EQ(library.settings("Hello.keyrill").play.times, PlayTimes{2});
    EXPECT_EQ(library.settings("hello.keyrill"), MacroSettings{});
}

TEST_F(MacroLibraryTest, findsByPathAndByName) {
    for (const char* path : {"Hello.keyrill", "mail/Hello.keyrill", "mail/Bye.keyrill"}) {
        folder().userWrites(path, "text");
    }
    open();
    EXPECT_EQ(library.find("mail/Bye.keyrill")->name(), "Bye");
    EXPECT_EQ(library.find("Bye.keyrill"), nullptr);
    using Entries = std::vector<LibraryEntry>;
    EXPECT_EQ(library.named("Hello"), (Entries{{"Hello.keyrill"}, {"mail/Hello.keyrill"}}));
    EXPECT_EQ(library.named("mail/Hello"), (Entries{{"mail/Hello.keyrill"}}));
    EXPECT_EQ(library.named("Bye.keyrill"), (Entries{{"mail/Bye.keyrill"}}));
    EXPECT_EQ(library.named("hello"), Entries{});
    EXPECT_EQ(library.named(""), Entries{});
}

TEST_F(MacroLibraryTest, findsWhatIsNotUtf8AlsoAsItIsShown) {
    folder().userWrites("Gr\x9fn.keyrill", "text");
    open();
    using Entries = std::vector<LibraryEntry>;
    const Entries it = {{"Gr\x9fn.keyrill"}};
    EXPECT_EQ(library.named("Gr\x9fn"), it);
    EXPECT_EQ(library.named("Grün"), it);
}

TEST_F(MacroLibraryTest, keepsSettingsBesideTheFiles) {
    folder().userWrites("a.keyrill", "a");
    open();
    library.setSettings("a.keyrill", {.play = twice});
    library.notePlayed("a.keyrill", noon);
    EXPECT_EQ(library.settings("a.keyrill"), (MacroSettings{.play = twice, .lastPlayed = noon}));
    EXPECT_EQ(told, (std::vector<LibraryChanges>{{.settings = {"a.keyrill"}}, {.settings = {"a.keyrill"}}}));
    records().endTurn();
    EXPECT_EQ(records().stored().at("a.keyrill"), (Record{{"lastPlayed", "43200"}, {"speed", "2"}}));
    EXPECT_EQ(library.text("a.keyrill").value(), "a");
}

TEST_F(MacroLibraryTest, tellsNothingWhereNothingHasChanged) {
    open();
    library.setSettings("a.keyrill", {});
    EXPECT_EQ(told.size(), 0U);
    records().endTurn();
    EXPECT_EQ(records().stored().size(), 0U);
}

TEST_F(MacroLibraryTest, aRenamedMacroKeepsWhatBelongsToIt) {
    folder().userWrites("a.keyrill", "a");
    records().put("a.keyrill", hotKey(18));
    open();
    folder().userRenames("a.keyrill", "group/b.keyrill");
    folder().deliver();
    EXPECT_EQ(paths(), Paths{"group/b.keyrill"});
    EXPECT_EQ(library.settings("group/b.keyrill").hotKey.code, 18);
    EXPECT_EQ(library.settings("a.keyrill"), MacroSettings{});
    records().endTurn();
    EXPECT_EQ(records().stored(), (std::map<std::string, Record>{{"group/b.keyrill", hotKey(18)}}));
}

TEST_F(MacroLibraryTest, aFolderOfMacrosKeepsWhatBelongsToThem) {
    folder().userWrites("mail/a.keyrill", "a");
    folder().userWrites("mail/b.keyrill", "b");
    records().put("mail/a.keyrill", hotKey(18));
    records().put("mail/b.keyrill", hotKey(19));
    open();
    folder().userRenames("mail", "post");
    folder().deliver();
    EXPECT_EQ(library.pathsWithHotKeys(), (Paths{"post/a.keyrill", "post/b.keyrill"}));
}

TEST_F(MacroLibraryTest, macrosThatChangeTheirNamesChangeTheirSettings) {
    folder().userWrites("a.keyrill", "a");
    folder().userWrites("b.keyrill", "b");
    records().put("a.keyrill", hotKey(18));
    records().put("b.keyrill", hotKey(19));
    open();
    folder().userRenames("a.keyrill", "c");
    folder().userRenames("b.keyrill", "a.keyrill");
    folder().userRenames("c", "b.keyrill");
    folder().deliver();
    EXPECT_EQ(paths(), (Paths{"a.keyrill", "b.keyrill"}));
    EXPECT_EQ(library.settings("a.keyrill").hotKey.code, 19);
    EXPECT_EQ(library.settings("b.keyrill").hotKey.code, 18);
}

TEST_F(MacroLibraryTest, theNameOfAnotherKeepsItsSettingsWhereTheMacroBringsNone) {
    folder().userWrites("a.keyrill", "a");
    folder().userWrites("new.keyrill", "edited");
    records().put("a.keyrill", hotKey(18));
    open();
    folder().userRenames("new.keyrill", "a.keyrill");
    folder().deliver();
    EXPECT_EQ(paths(), Paths{"a.keyrill"});
    EXPECT_EQ(library.settings("a.keyrill").hotKey.code, 18);
}

TEST_F(MacroLibraryTest, aMacroThatTakesTheNameOfAnotherBringsItsSettings) {
    folder().userWrites("a.keyrill", "a");
    folder().userWrites("b.keyrill", "b");
    records().put("a.keyrill", hotKey(18));
    records().put("b.keyrill", {{"times", "5"}});
    open();
    folder().userRenames("b.keyrill", "a.keyrill");
    folder().deliver();
    EXPECT_EQ(library.settings("a.keyrill"), (MacroSettings{.play = {.times = {5}, .speed = 1}}));
}

TEST_F(MacroLibraryTest, aMacroThatIsReplacedOrComesBackHasItsSettings) {
    folder().userWrites("a.keyrill", "a");
    records().put("a.keyrill", hotKey(18));
    open();
    folder().userReplaces("a.keyrill", "edited");
    folder().deliver();
    EXPECT_EQ(library.settings("a.keyrill").hotKey.code, 18);
    folder().userRemoves("a.keyrill");
    folder().deliver();
    folder().userWrites("a.keyrill", "back");
    folder().deliver();
    EXPECT_EQ(library.settings("a.keyrill").hotKey.code, 18);
}

TEST_F(MacroLibraryTest, tellsWhatCannotBeRead) {
    open();
    const std::vector<Error> faults{{"The folder x cannot be read: Permission denied", ""}};
    folder().hasFaults(faults);
    folder().deliver();
    EXPECT_EQ(library.faults(), faults);
    EXPECT_EQ(told, (std::vector<LibraryChanges>{{.hasOtherFaults = true}}));
    folder().hasFaults({});
    folder().deliver();
    EXPECT_EQ(library.faults(), std::vector<Error>{});
}

TEST_F(MacroLibraryTest, aListenerMayChangeSettingsAndAllHearOfBothInOrder) {
    struct Setter : LibraryListener {
        explicit Setter(MacroLibrary& all) : library(all) {}
        void libraryChanged(const LibraryChanges& changes) override {
            for (const std::string& path : changes.appeared) library.notePlayed(path, noon);
        }
        MacroLibrary& library;
    } setter(library);
    library.removeListener(*this);
    library.addListener(setter);
    library.addListener(*this);
    open();
    folder().userWrites("a.keyrill", "a");
    folder().deliver();
    EXPECT_EQ(told, (std::vector<LibraryChanges>{{.appeared = {"a.keyrill"}}, {.settings = {"a.keyrill"}}}));
    library.removeListener(setter);
    folder().userWrites("b.keyrill", "b");
    folder().deliver();
    EXPECT_EQ(library.settings("b.keyrill"), MacroSettings{});
}

TEST_F(MacroLibraryTest, aFileOfSomebodyElseBringsNoSettings) {
    open();
    const std::string text = "hotKeyCode=18\nhotKeyFlags=1310720\n[somebodys.keyrill]\nhotKeyCode=18\n";
    folder().userWrites("somebodys.keyrill", text);
    folder().deliver();
    EXPECT_EQ(library.text("somebodys.keyrill").value(), text);
    EXPECT_EQ(library.pathsWithHotKeys(), Paths{});
}

}  // namespace
