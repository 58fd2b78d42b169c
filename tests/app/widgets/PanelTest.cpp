// SPDX-License-Identifier: MIT
#include "app/widgets/Panel.h"

#include <gtest/gtest.h>

#include <QCloseEvent>
#include <QCoreApplication>
#include <QKeyEvent>

namespace {

/// A panel whose closes are counted.
class PanelTest : public testing::Test {
  protected:
    PanelTest() {
        QObject::connect(&panel, &Panel::willClose, [this] { ++closes; });
    }

    Panel panel{QStringLiteral("Panel")};
    int closes = 0;
};

TEST_F(PanelTest, tellsThatItCloses) {
    panel.show();
    panel.close();
    EXPECT_EQ(closes, 1);
    EXPECT_FALSE(panel.isVisible());
}

TEST_F(PanelTest, doesNotCloseWhenItIsHidden) {
    panel.show();
    panel.hide();
    EXPECT_EQ(closes, 0);
}

TEST_F(PanelTest, doesNotCloseWhenItIsMinimised) {
    panel.show();
    panel.showMinimized();
    EXPECT_EQ(closes, 0);
}

TEST_F(PanelTest, closesOnEscape) {
    panel.show();
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(&panel, &escape);
    EXPECT_EQ(closes, 1);
}

TEST_F(PanelTest, canBeClosedAgain) {
    for (int time = 0; time < 2; ++time) {
        panel.show();
        panel.close();
    }
    EXPECT_EQ(closes, 2);
}

/// A panel that does not let itself be closed.
class RefusingPanel : public Panel {
  public:
    RefusingPanel() : Panel(QStringLiteral("Refusing")) { installEventFilter(this); }

    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() != QEvent::Close) return Panel::eventFilter(object, event);
        event->ignore();
        return true;
    }
};

TEST(RefusingPanelTest, doesNotTellOfACloseThatWasRefused) {
    RefusingPanel panel;
    int closes = 0;
    QObject::connect(&panel, &Panel::willClose, [&closes] { ++closes; });
    panel.show();
    panel.close();
    EXPECT_EQ(closes, 0);
    EXPECT_TRUE(panel.isVisible());
}

}  // namespace
