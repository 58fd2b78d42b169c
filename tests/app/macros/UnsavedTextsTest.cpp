// SPDX-License-Identifier: MIT
#include "app/macros/UnsavedTexts.h"

#include <gtest/gtest.h>

#include <QEventLoop>
#include <QTimer>

#include "support/Child.h"

namespace {

using Texts = std::map<std::string, std::string>;

Texts textsOf(const std::map<std::string, Draft>& drafts) {
    Texts texts;
    for (const auto& [path, draft] : drafts) texts[path] = draft.text;
    return texts;
}

class UnsavedTextsTest : public testing::Test {
  protected:
    Texts onDisk() const { return textsOf(DraftFiles(folder).all()); }

    TemporaryFolder home;
    const std::string folder = home.file("unsaved");
};

TEST_F(UnsavedTextsTest, areOnTheDiskWhenTheProgramEnds) {
    {
        UnsavedTexts texts{DraftFiles(folder)};
        texts.set("a", "one", "saved");
        texts.set("b", "two", "saved");
        EXPECT_EQ(texts.take("b"), (Draft{"two", fingerprintOf("saved")}));
        EXPECT_EQ(texts.take("b"), std::nullopt);
    }
    EXPECT_EQ(onDisk(), (Texts{{"a", "one"}}));
    UnsavedTexts next{DraftFiles(folder)};
    next.load();
    EXPECT_EQ(textsOf(next.all()), (Texts{{"a", "one"}}));
}

TEST_F(UnsavedTextsTest, knowWhatTheyWereFirstMadeFrom) {
    {
        UnsavedTexts texts{DraftFiles(folder)};
        texts.set("a", "one", "saved");
        texts.set("a", "one two", "saved by others meanwhile");
        EXPECT_EQ(texts.find("a")->base, fingerprintOf("saved"));
        texts.putBack("b", *texts.take("a"));
        texts.rename({{"b", "c"}});
    }
    UnsavedTexts next{DraftFiles(folder)};
    next.load();
    EXPECT_EQ(*next.find("c"), (Draft{"one two", fingerprintOf("saved")}));
}

TEST_F(UnsavedTextsTest, goWithTheirMacrosAlsoWhereTheseChangePlaces) {
    {
        UnsavedTexts texts{DraftFiles(folder)};
        texts.set("a", "one", "saved");
        texts.set("b", "two", "saved");
        texts.set("c", "three", "saved");
        texts.rename({{"a", "b"}, {"b", "a"}, {"c", "d"}, {"x", "y"}});
        EXPECT_EQ(textsOf(texts.all()), (Texts{{"a", "two"}, {"b", "one"}, {"d", "three"}}));
    }
    EXPECT_EQ(onDisk(), (Texts{{"a", "two"}, {"b", "one"}, {"d", "three"}}));
}

TEST_F(UnsavedTextsTest, tellWhatCannotBeKept) {
    UnsavedTexts texts{DraftFiles("/proc/nowhere")};
    std::string told;
    QEventLoop loop;
    QObject::connect(&texts, &UnsavedTexts::notKept, [&](const Error& why) {
        told = why.message;
        loop.quit();
    });
    QTimer::singleShot(10'000, &loop, &QEventLoop::quit);
    texts.set("a", "one", "saved");
    loop.exec();
    EXPECT_EQ(told, "The folder /proc/nowhere cannot be written to: No such file or directory.");
    EXPECT_EQ(textsOf(texts.all()), (Texts{{"a", "one"}}));
}

}  // namespace
