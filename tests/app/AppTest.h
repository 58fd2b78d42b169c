// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "app/FakeDialogs.h"
#include "app/controller/AppController.h"
#include "app/tray/StatusItem.h"
#include "engine/EngineTest.h"
#include "platform/Windows.h"

/// A status item that remembers what it shows.
class FakeStatusItem : public StatusItem {
  public:
    void show(QMenu& menu, StatusImage image) override {
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
};

/// A window system that remembers what it is asked for: "activate 77", "await hidden", "await".
class FakeWindows : public Windows {
  public:
    void activate(WindowId /*window*/, std::uint32_t userTime) override {
        calls.push_back("activate " + std::to_string(userTime));
    }
    void awaitFocusElsewhere(WindowId hidden) override {
        calls.emplace_back(hidden == none ? "await" : "await hidden");
    }

    std::vector<std::string> calls;
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

    FakeStatusItem statusItem;
    FakeWindows windows;
    FakeDialogs dialogs;
    AppController controller;
};
