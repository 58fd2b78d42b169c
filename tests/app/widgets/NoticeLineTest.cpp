// SPDX-License-Identifier: MIT
#include "app/widgets/NoticeLine.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QLabel>

namespace {

/// The first row of a picture of it in which anything is drawn.
int firstRowOf(QWidget& widget) {
    const QImage picture = widget.grab().toImage();
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 1; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != picture.pixel(0, 0)) return y;
        }
    }
    return picture.height();
}

/// Layouts give a text that is broken into lines more height than it needs where it gets broader later.
TEST(NoticeLineTest, beginsBesideTheSignHoweverHighItIs) {
    NoticeLine line;
    line.setNotice(QStringLiteral("Ctrl+Super+P cannot be used: another program holds it."));
    QLabel* text = nullptr;
    for (auto* label : line.findChildren<QLabel*>()) {
        if (!label->text().isEmpty()) text = label;
    }
    ASSERT_NE(text, nullptr);
    line.resize(500, line.heightForWidth(500));
    const int row = firstRowOf(*text);
    line.resize(500, 200);
    EXPECT_EQ(firstRowOf(*text), row);
    EXPECT_EQ(text->y(), 0);
}

}  // namespace
