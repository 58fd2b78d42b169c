// SPDX-License-Identifier: MIT
#include "app/AppTest.h"

#include <QApplication>
#include <QPropertyAnimation>
#include <array>
#include <memory>

#include "engine/KeyRecorder.h"

namespace {

/// Widgets need an application before them, and it has to end before the process does.
class WithApplication : public testing::Environment {
  public:
    void SetUp() override {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        m_application = std::make_unique<QApplication>(m_argc, m_argv.data());
    }
    void TearDown() override { m_application.reset(); }

  private:
    std::string m_name = "app_test";
    int m_argc = 1;
    std::array<char*, 2> m_argv{m_name.data(), nullptr};
    std::unique_ptr<QApplication> m_application;
};

const testing::Environment* const environment = testing::AddGlobalTestEnvironment(new WithApplication);

}  // namespace

AppTest::AppTest() : controller(platform().services, windows, statusItem, dialogs, library.controller) {}

std::string AppTest::menu() const {
    QStringList titles;
    for (const QAction* item : controller.statusMenu.actions()) {
        if (!item->isVisible()) continue;
        const QString title = item->isSeparator() ? QStringLiteral("-") : item->text();
        titles.append(item->isEnabled() ? title : QLatin1Char('[') + title + QLatin1Char(']'));
    }
    return titles.join(QStringLiteral(", ")).toStdString();
}

void AppTest::type(std::uint32_t keyCode) { handleKeyEvent({KeyEventKind::keyDown, keyCode, 0, 0}); }

float AppTest::fadeEnd(const QWidget& window) {
    const auto* fade = window.findChild<QPropertyAnimation*>();
    return fade != nullptr ? fade->endValue().toFloat() : -1;
}

bool AppTest::isFadingIn(const QWidget& window) {
    return window.isVisible() && window.windowOpacity() == 0 && fadeEnd(window) > 0;
}
