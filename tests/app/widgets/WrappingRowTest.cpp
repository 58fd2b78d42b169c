// SPDX-License-Identifier: MIT
#include "app/widgets/WrappingRow.h"

#include <gtest/gtest.h>

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <QWidget>

namespace {

/// A control of one size.
class Box : public QWidget {
  public:
    explicit Box(QSize size) { setFixedSize(size); }
};

/// Three boxes, 100, 50 and 80 pixels wide and 20, 30 and 20 high, 10 apart.
class WrappingRowTest : public testing::Test {
  protected:
    WrappingRowTest() {
        row->setContentsMargins(0, 0, 0, 0);
        row->setSpacing(10);
        for (QWidget* box : boxes) row->addWidget(box);
        window.setLayout(row);
    }
    void setWidth(int width) {
        window.resize(width, 200);
        row->setGeometry(window.rect());
    }
    std::vector<QPoint> places() const {
        std::vector<QPoint> places;
        for (const QWidget* box : boxes) places.push_back(box->pos());
        return places;
    }

    QWidget window;
    std::vector<QWidget*> boxes = {new Box({100, 20}), new Box({50, 30}), new Box({80, 20})};
    WrappingRow* row = new WrappingRow;
};

TEST_F(WrappingRowTest, isOneLineWhereAllFit) {
    EXPECT_EQ(row->sizeHint(), QSize(250, 30));
    setWidth(250);
    EXPECT_EQ(places(), (std::vector<QPoint>{{0, 5}, {110, 0}, {170, 5}}));
    EXPECT_EQ(row->heightForWidth(250), 30);
}

TEST_F(WrappingRowTest, spreadsALineOverTheWidth) {
    setWidth(290);
    EXPECT_EQ(places(), (std::vector<QPoint>{{0, 5}, {130, 0}, {210, 5}}));
}

TEST_F(WrappingRowTest, beginsALineForWhatDoesNotFit) {
    setWidth(249);
    EXPECT_EQ(places(), (std::vector<QPoint>{{0, 5}, {199, 0}, {0, 40}}));
    EXPECT_EQ(row->heightForWidth(249), 60);
}

TEST_F(WrappingRowTest, hasALineEachWhereItIsNarrowest) {
    EXPECT_EQ(row->minimumSize().width(), 100);
    setWidth(100);
    EXPECT_EQ(places(), (std::vector<QPoint>{{0, 0}, {0, 30}, {0, 70}}));
    EXPECT_EQ(row->heightForWidth(100), 90);
}

TEST_F(WrappingRowTest, beginsAtTheRightWhereThatIsHowOneReads) {
    window.setLayoutDirection(Qt::RightToLeft);
    setWidth(249);
    EXPECT_EQ(places(), (std::vector<QPoint>{{149, 5}, {0, 0}, {169, 40}}));
}

TEST_F(WrappingRowTest, getsTheRoomOfItsLinesAboveOthers) {
    QWidget outer;
    auto* box = new QVBoxLayout(&outer);
    box->setContentsMargins(0, 0, 0, 0);
    auto* below = new Box({100, 20});
    auto* inner = new WrappingRow;
    inner->setContentsMargins(0, 3, 0, 4);
    inner->setSpacing(10);
    for (const int width : {60, 60}) inner->addWidget(new Box({width, 20}));
    box->addLayout(inner);
    box->addWidget(below);
    outer.resize(100, 300);
    outer.show();
    EXPECT_GE(below->y(), 3 + 20 + 10 + 20 + 4);
}

TEST_F(WrappingRowTest, aGroupStaysTogether) {
    auto* group = new QHBoxLayout;
    group->setSpacing(10);
    for (const int width : {60, 60}) group->addWidget(new Box({width, 20}));
    row->addLayout(group);
    setWidth(250);
    EXPECT_EQ(group->geometry().topLeft(), QPoint(0, 40));
    EXPECT_EQ(row->heightForWidth(129), 20 + 10 + 30 + 10 + 20 + 10 + 20);
}

}  // namespace
