// SPDX-License-Identifier: MIT
#include "library/MacroNames.h"

#include "library/LibraryTest.h"

namespace {

class MacroNamesTest : public LibraryTest {
  protected:
    void openWith(std::initializer_list<const char*> names) {
        for (const char* name : names) folder().userWrites(std::string(name) + ".keyrill", "text");
        open();
    }
    /// The path, or nothing.
    std::string pathOf(std::string_view name) const {
        const auto path = pathOfNamed(library, name);
        return path ? path.value() : std::string();
    }
    UnknownName unknown(std::string_view name) const { return pathOfNamed(library, name).error(); }
};

TEST_F(MacroNamesTest, aLongNameIsThePathWithoutTheEnding) {
    EXPECT_EQ(longName({"work/mail/Hello.keyrill"}), "work/mail/Hello");
    EXPECT_EQ(longName({"Hello.KEYRILL"}), "Hello");
}

TEST_F(MacroNamesTest, aMacroIsNamedByItselfOrWithItsGroup) {
    openWith({"mail/Hello", "Bye"});
    for (const char* name : {"Hello", "Hello.keyrill", "mail/Hello", "mail/Hello.keyrill"}) {
        EXPECT_EQ(pathOf(name), "mail/Hello.keyrill") << name;
    }
    EXPECT_EQ(pathOf("Bye"), "Bye.keyrill");
}

TEST_F(MacroNamesTest, ofSeveralTheOneOfNoGroupHasTheName) {
    openWith({"Hello", "mail/Hello"});
    EXPECT_EQ(pathOf("Hello"), "Hello.keyrill");
    EXPECT_EQ(pathOf("mail/Hello"), "mail/Hello.keyrill");
}

TEST_F(MacroNamesTest, severalInGroupsAreNamed) {
    openWith({"mail/Hello", "work/Hello", "work/Other"});
    EXPECT_EQ(unknown("Hello"), (UnknownName{.several = {"mail/Hello", "work/Hello"}}));
    EXPECT_EQ(unknown("Hello.keyrill"), (UnknownName{.several = {"mail/Hello", "work/Hello"}}));
}

TEST_F(MacroNamesTest, anEndingInAnotherCaseTellsTwoApart) {
    folder().userWrites("Hello.KEYRILL", "text");
    openWith({"Hello"});
    EXPECT_EQ(unknown("Hello"), (UnknownName{.several = {"Hello", "Hello"}}));
    EXPECT_EQ(pathOf("Hello.KEYRILL"), "Hello.KEYRILL");
    EXPECT_EQ(pathOf("Hello.keyrill"), "Hello.keyrill");
}

TEST_F(MacroNamesTest, theNearestAreOffered) {
    openWith({"Greeting", "Greetings", "mail/Greting", "Signature", "Good-bye"});
    EXPECT_EQ(unknown("greeting").near, (Paths{"Greeting", "Greetings", "mail/Greting"}));
    EXPECT_EQ(unknown("Greetign.keyrill").near, (Paths{"Greeting", "Greetings", "mail/Greting"}));
    EXPECT_EQ(unknown("mail/Greeting").near, (Paths{"Greeting", "mail/Greting", "Greetings"}));
    EXPECT_EQ(unknown("sign").near, (Paths{"Signature"}));
    EXPECT_EQ(unknown("letter"), UnknownName{});
    EXPECT_EQ(unknown(""), UnknownName{});
}

TEST_F(MacroNamesTest, notMoreThanThreeAreOffered) {
    openWith({"a1", "a2", "a3", "a4"});
    EXPECT_EQ(unknown("a").near, (Paths{"a1", "a2", "a3"}));
}

TEST_F(MacroNamesTest, veryLongNamesAreNearToNone) {
    openWith({std::string(300, 'a').c_str(), "b"});
    EXPECT_EQ(unknown(std::string(299, 'a')), UnknownName{});
}

}  // namespace
