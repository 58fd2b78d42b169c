// SPDX-License-Identifier: MIT
#include "app/macros/TextReader.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>
#include <chrono>
#include <memory>
#include <mutex>
#include <vector>

#include "support/Child.h"

namespace {

/// Files in memory that answer when they are let.
class SlowFiles {
  public:
    Result<std::string> read(const std::string& file) {
        const std::lock_guard waits(m_held);
        const std::lock_guard lock(m_mutex);
        m_read.push_back(file);
        if (file == "/gone") return Error{"It is gone.", ""};
        return "text of " + file;
    }
    void hold() { m_held.lock(); }
    void letGo() { m_held.unlock(); }
    std::vector<std::string> wereRead() {
        const std::lock_guard lock(m_mutex);
        return m_read;
    }

  private:
    std::mutex m_held;
    std::mutex m_mutex;
    std::vector<std::string> m_read;
};

class TextReaderTest : public testing::Test {
  protected:
    TextReaderTest() {
        const auto note = [this](const std::string& path, const Result<std::string>& text) {
            told.push_back(path + ": " + (text ? text.value() : text.error().message.text()));
            if (told.size() == m_awaited) m_loop.quit();
        };
        QObject::connect(&reader, &TextReader::wasReadFirst, note);
        QObject::connect(&reader, &TextReader::wasReadLater, note);
    }
    /// Until so many have been told.
    void await(std::size_t count) {
        m_awaited = count;
        QTimer::singleShot(10'000, &m_loop, &QEventLoop::quit);
        if (told.size() < count) m_loop.exec();
        ASSERT_EQ(told.size(), count);
    }

    /// A thread that does not end in time holds them too.
    std::shared_ptr<SlowFiles> files = std::make_shared<SlowFiles>();
    TextReader reader{[files = files](const std::string& file) { return files->read(file); }};
    std::vector<std::string> told;

  private:
    QEventLoop m_loop;
    std::size_t m_awaited = 0;
};

using Lines = std::vector<std::string>;

TEST_F(TextReaderTest, tellsTextsAndWhyThereIsNone) {
    reader.readFirst("a", "/a");
    reader.readFirst("gone", "/gone");
    await(2);
    EXPECT_EQ(told, (Lines{"a: text of /a", "gone: It is gone."}));
}

TEST_F(TextReaderTest, aTextThatIsThereSoonIsToldAtOnce) {
    for (int number = 0; number < 100; ++number)
        reader.readLater(std::to_string(number), "/" + std::to_string(number));
    reader.readFirst("a", "/a");
    reader.await("a", std::chrono::seconds(10));
    EXPECT_EQ(told, Lines{"a: text of /a"});
    // What was read for something else may be older.
    reader.readLater("b", "/b");
    await(102);
    told.clear();
    reader.readLater("b", "/b");
    files->hold();
    reader.readFirst("b", "/b");
    reader.await("b", std::chrono::milliseconds(1));
    EXPECT_EQ(told, Lines{});
    files->letGo();
    await(2);
}

TEST_F(TextReaderTest, goesOnTellingWhereItTakesMoreThanATurnOfTheLoop) {
    QObject::connect(&reader, &TextReader::wasReadFirst, [] {
        QElapsedTimer watch;
        watch.start();
        constexpr qint64 milliseconds = 10;
        while (!watch.hasExpired(milliseconds)) continue;
    });
    for (int number = 0; number < 3; ++number) reader.readFirst("a", "/a");
    // None is told before the loop runs.
    ASSERT_TRUE(eventually([this] { return files->wereRead().size() == 3; }));
    await(3);
}

TEST_F(TextReaderTest, whatIsWantedFirstIsReadBeforeAllThatWaits) {
    files->hold();
    for (int number = 0; number < 500; ++number)
        reader.readLater(std::to_string(number), "/" + std::to_string(number));
    reader.readFirst("wanted", "/wanted");
    files->letGo();
    await(501);
    // One may have been begun.
    const Lines read = files->wereRead();
    EXPECT_TRUE(read[0] == "/wanted" || read[1] == "/wanted") << read[0] << read[1];
}

TEST_F(TextReaderTest, whatWaitsIsReadOnceUntilItIsForgotten) {
    files->hold();
    reader.readFirst("begun", "/begun");
    for (int time = 0; time < 2; ++time) reader.readLater("a", "/a");
    reader.readLater("b", "/b");
    reader.forgetLater();
    reader.readLater("b", "/b");
    reader.readLater("b", "/b");
    files->letGo();
    await(2);
    EXPECT_EQ(told, (Lines{"begun: text of /begun", "b: text of /b"}));
}

TEST_F(TextReaderTest, endsAlthoughAFileDoesNotAnswer) {
    files->hold();
    {
        int tellings = 0;
        TextReader other([files = files](const std::string& file) { return files->read(file); });
        QObject::connect(&other, &TextReader::wasReadFirst, [&tellings] { ++tellings; });
        other.readFirst("a", "/a");
        EXPECT_EQ(tellings, 0);
    }
    files->letGo();
    // Nobody is there to be told; the thread goes on to its end.
    reader.readFirst("b", "/b");
    await(1);
    EXPECT_EQ(told, Lines{"b: text of /b"});
}

}  // namespace
