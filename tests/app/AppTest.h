// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "app/FakeDialogs.h"
#include "app/controller/AppController.h"
#include "app/library/LibraryController.h"
#include "app/tray/StatusItem.h"
#include "engine/EngineTest.h"
#include "platform/Windows.h"
#include "support/Child.h"

/// A status item that remembers what it shows.
class FakeStatusItem : public StatusItem {
  public:
    explicit FakeStatusItem(Journal& journal) : m_journal(journal) {}

    void show(QMenu& menu, StatusImage image) override {
        m_journal.note("showStatusItem");
        shownMenu = &menu;
        shownImage = image;
    }
    void setImage(StatusImage image) override { shownImage = image; }
    void setNotice(const QString& notice) override { shownNotice = notice.toStdString(); }
    QWidget* window() override { return standIn; }
    void showWindow() override { ++windowRequests; }

    QMenu* shownMenu = nullptr;
    std::optional<StatusImage> shownImage;
    std::string shownNotice;
    QWidget* standIn = nullptr;
    int windowRequests = 0;

  private:
    Journal& m_journal;
};

/// A window system that remembers what it is asked for: "activate(77)", "awaitFocusElsewhere(hidden)",
/// "awaitFocusElsewhere(none)".
class FakeWindows : public Windows {
  public:
    explicit FakeWindows(Journal& journal) : m_journal(journal) {}

    void refuseFocus(const OwnWindow& /*window*/) override {}
    void activate(const OwnWindow& /*window*/, std::uint32_t userTime) override {
        m_journal.note("activate", userTime);
    }
    void awaitFocusElsewhere(const OwnWindow& hidden) override {
        m_journal.note("awaitFocusElsewhere", Journal::Word{hidden.id == none ? "none" : "hidden"});
    }

    Journal::Lines calls() const { return m_journal.of({"activate", "awaitFocusElsewhere"}); }

  private:
    Journal& m_journal;
};

/// The library on the fake platform, with hot keys of which the others know nothing.
class FakeLibrary {
  public:
    explicit FakeLibrary(FakePlatform& platform)
        : hotKeys(m_journal, platform.desktop, platform.clock),
          controller({.folderFollower = platform.folderFollower,
                      .macroRecords = platform.macroRecords,
                      .recordings = platform.recordings,
                      .macroFiles = platform.macroFiles,
                      .hotKeys = hotKeys,
                      .firstHotKey = 1000,
                      .notifications = platform.notifications,
                      .scripting = platform.scripting,
                      .draftFolder = m_state.file("unsaved")}) {}

  private:
    Journal m_journal;
    TemporaryFolder m_state;

  public:
    FakeHotKeys hotKeys;
    LibraryController controller;
};

/// The controller on the fake platform, its windows on a screen in memory.
class AppTest : public EngineTest {
  protected:
    AppTest();

    /// The titles of the menu's items that are shown, greyed ones in brackets.
    std::string menu() const;

    static void type(std::uint32_t keyCode);

    /// The opacity that the window's running fade leads to.
    static float fadeEnd(const QWidget& window);
    /// Whether a running fade started from nothing.
    static bool isFadingIn(const QWidget& window);

    FakeStatusItem statusItem{platform().journal};
    FakeWindows windows{platform().journal};
    FakeDialogs dialogs{platform().journal};
    FakeLibrary library{platform()};
    AppController controller;
};
