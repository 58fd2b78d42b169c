// SPDX-License-Identifier: MIT
#include "app/overlay/MacroText.h"

#include <gtest/gtest.h>

#include <QImage>
#include <set>

#include "app/widgets/MacroSigns.h"

namespace {

QImage painted(const std::string& text) {
    MacroText line;
    line.resize(300, 40);
    line.setText(text);
    QImage image(line.size(), QImage::Format_RGB32);
    image.fill(Qt::black);
    line.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

std::string times(const std::string& text, int count) {
    std::string result;
    for (int i = 0; i < count; ++i) result += text;
    return result;
}

TEST(MacroTextTest, paintsTheEndOfALongText) {
    EXPECT_EQ(painted(times("A ", 50'000) + "the end"), painted(times("A ", 200) + "the end"));
    EXPECT_NE(painted(times("A ", 200) + "the end"), painted(times("A ", 200) + "the exit"));
}

TEST(MacroTextTest, paintsTheWholeOfAShortText) {
    EXPECT_NE(painted("A B C"), painted("B B C"));
    EXPECT_NE(painted("i i i i i i i i i i i i i i i i i i"),
              painted("l i i i i i i i i i i i i i i i i i i"));
}

TEST(MacroTextTest, doesNotCutACharacterInTwo) {
    // Beyond the 16-bit characters; an odd number of others after them moves the cut.
    const std::string wide = "\xF0\x9F\x92\xA1";
    EXPECT_EQ(painted(times(wide, 2'000) + "a"), painted(times(wide, 500) + "a"));
    EXPECT_EQ(painted(times(wide, 2'000) + "aa"), painted(times(wide, 500) + "aa"));
}

TEST(MacroTextTest, tellsOfANewTextAtMostOnceAFrame) {
    MacroText line;
    int refreshes = 0;
    QObject::connect(&line, &MacroText::refreshed, [&refreshes] { ++refreshes; });
    for (int key = 0; key < 1000; ++key) line.setText(times("A ", key));
    EXPECT_EQ(refreshes, 1);
}

TEST(MacroTextTest, canBeReadOnAnyGround) {
    for (const QColor& ground : {QColor(Qt::white), QColor(Qt::black)}) {
        MacroText line;
        line.resize(300, 40);
        line.setText("A B");
        QImage image(line.size(), QImage::Format_RGB32);
        image.fill(ground);
        line.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        std::set<QRgb> colours;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) colours.insert(image.pixel(x, y));
        }
        EXPECT_TRUE(colours.contains(QColor(0x1e, 0x22, 0x2a).rgb()));
        EXPECT_TRUE(colours.contains(QColor(Qt::white).rgb()));
        EXPECT_EQ(image.pixelColor(299, 0), ground) << "but for its words";
    }
}

TEST(MacroSignsTest, leaveOutWhatNoFontHas) {
    const QString text = QStringLiteral("a<⌛ 0.50>b<⌛ 12.00>");
    EXPECT_EQ(withSignsThatShow(text, [](char32_t) { return true; }), text);
    EXPECT_EQ(withSignsThatShow(text, [](char32_t sign) { return sign != U'\u231B'; }), "a<0.50>b<12.00>");
}

}  // namespace
