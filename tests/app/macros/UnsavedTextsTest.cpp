// SPDX-License-Identifier: MIT
#include "app/macros/UnsavedTexts.h"

#include <gtest/gtest.h>

#include <QEventLoop>
#include <QTimer>

#include "support/Child.h"

namespace {

using Texts = std::map<std::string, std::string>;

class UnsavedTextsTest : public testing::Test {
  protected:
    Texts onDisk() const { return DraftFiles(folder).all(); }

    TemporaryFolder home;
    const std::string folder = home.file("unsaved");
};

TEST_F(UnsavedTextsTest, areOnTheDiskWhenTheProgramEnds) {
    {
        UnsavedTexts texts{DraftFiles(folder)};
        texts.set("a", "one");
        texts.set("b", "two");
        EXPECT_EQ(texts.take("b"), "two");
        EXPECT_EQ(texts.take("b"), std::nullopt);
    }
    EXPECT_EQ(onDisk(), (Texts{{"a", "one"}}));
    UnsavedTexts next{DraftFiles(folder)};
    next.load();
    EXPECT_EQ(next.all(), (Texts{{"a", "one"}}));
}

TEST_F(UnsavedTextsTest, goWithTheirMacrosAlsoWhereTheseChangePlaces) {
    {
        UnsavedTexts texts{DraftFiles(folder)};
        texts.set("a", "one");
        texts.set("b", "two");
        texts.set("c", "three");
        texts.rename({{"a", "b"}, {"b", "a"}, {"c", "d"}, {"x", "y"}});
        EXPECT_EQ(texts.all(), (Texts{{"a", "two"}, {"b", "one"}, {"d", "three"}}));
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
    texts.set("a", "one");
    loop.exec();
    EXPECT_EQ(told, "The folder /proc/nowhere cannot be written to: No such file or directory.");
    EXPECT_EQ(texts.all(), (Texts{{"a", "one"}}));
}

}  // namespace
