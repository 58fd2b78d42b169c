// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>
#include <algorithm>
#include <filesystem>

#include "app/icons/PictureReference.h"
#include "app/icons/StatusIcon.h"
#include "app/overlay/MultiplePlayView.h"
#include "app/overlay/OverlayPanel.h"
#include "app/overlay/RecorderView.h"
#include "app/overlay/SplashAnimation.h"
#include "app/overlay/SplashWindow.h"
#include "support/Child.h"

namespace {

const QString pictures = QStringLiteral(KEYRILL_PICTURES);

/// What the view paints on a ground that shines through.
template <typename View>
QImage painted(const QString& folder, Qt::LayoutDirection direction = Qt::LeftToRight) {
    View view(folder);
    view.setAttribute(Qt::WA_TranslucentBackground);
    view.setLayoutDirection(direction);
    view.resize(View::pictureSize);
    QImage image(view.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    view.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

/// What the session calls itself, until the end of the test.
class CurrentDesktop {
  public:
    explicit CurrentDesktop(const char* name) { qputenv("XDG_CURRENT_DESKTOP", name); }
    ~CurrentDesktop() { qputenv("XDG_CURRENT_DESKTOP", m_before); }
    CurrentDesktop(const CurrentDesktop&) = delete;
    CurrentDesktop& operator=(const CurrentDesktop&) = delete;

  private:
    const QByteArray m_before = qgetenv("XDG_CURRENT_DESKTOP");
};

bool isBlank(const QImage& image) {
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).alpha() != 0) return false;
        }
    }
    return true;
}

TEST(RecorderViewTest, drawsItsPicture) {
    const QImage image = painted<RecorderView>(pictures);
    EXPECT_EQ(image.pixelColor(24, 30).name(), QStringLiteral("#e5484d"));
    EXPECT_EQ(image.pixelColor(200, 30).name(), QStringLiteral("#1e222a"));
    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0) << "round corners";
}

TEST(OverlayPanelTest, leavesThePicturesOutlineWhole) {
    QWidget window;
    window.resize(RecorderView::pictureSize);
    shapeAsOverlayPanel(window);
    const QImage image = painted<RecorderView>(pictures);
    int visible = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).alpha() < 160) continue;
            ++visible;
            EXPECT_TRUE(window.mask().contains(QPoint(x, y))) << x << ", " << y;
        }
    }
    EXPECT_GT(visible, 420 * 55);
    EXPECT_FALSE(window.mask().contains(QPoint(0, 0)));
    EXPECT_FALSE(window.mask().contains(QPoint(419, 59)));
}

TEST(RecorderViewTest, isBlankWithoutItsPicture) {
    EXPECT_TRUE(isBlank(painted<RecorderView>(QStringLiteral("/nowhere"))));
}

TEST(MultiplePlayViewTest, drawsItsPictureWhereItsLineBegins) {
    const QString mark = QStringLiteral("#4cc38a");
    EXPECT_EQ(painted<MultiplePlayView>(pictures).pixelColor(18, 30).name(), mark);
    EXPECT_EQ(painted<MultiplePlayView>(pictures, Qt::RightToLeft).pixelColor(420 - 18, 30).name(), mark);
}

TEST(MultiplePlayViewTest, isBlankWithoutItsPicture) {
    EXPECT_TRUE(isBlank(painted<MultiplePlayView>(QStringLiteral("/nowhere"))));
}

TEST(PictureReferenceTest, isReadWhenItIsDrawn) {
    const TemporaryFolder folder;
    const PictureReference picture(QString::fromStdString(folder.path()), QStringLiteral("recording"));
    std::filesystem::copy_file(KEYRILL_PICTURES "/recording.svg", folder.file("recording.svg"));
    EXPECT_FALSE(picture.pixmap({420, 60}, 1).isNull());
}

TEST(PictureReferenceTest, takesThePngWhereThereIsNoSvg) {
    const TemporaryFolder folder;
    std::filesystem::copy_file(KEYRILL_PICTURES "/recording.png", folder.file("recording.png"));
    const PictureReference picture(QString::fromStdString(folder.path()), QStringLiteral("recording"));
    EXPECT_EQ(picture.pixmap({420, 60}, 1).toImage().pixelColor(24, 30).name(), QStringLiteral("#e5484d"));
}

TEST(PictureReferenceTest, isSharpOnScreensOfAnyDensity) {
    const PictureReference picture(pictures, QStringLiteral("recording"));
    for (const qreal ratio : {1.0, 1.5, 2.0}) {
        const QPixmap pixmap = picture.pixmap({420, 60}, ratio);
        EXPECT_EQ(pixmap.size(), QSize(420, 60) * ratio);
        EXPECT_EQ(pixmap.deviceIndependentSize(), QSizeF(420, 60));
    }
}

TEST(SplashWindowTest, stopsItsAnimation) {
    SplashWindow splash(pictures);
    EXPECT_FALSE(splash.splashAnim().isRendering());
    splash.show();
    EXPECT_TRUE(splash.splashAnim().isRendering());
    splash.splashAnim().stopRendering();
    EXPECT_FALSE(splash.splashAnim().isRendering());
}

TEST(StatusIconTest, differsInShapeForEachState) {
    // Shapes without colours: what panels paint in one colour of their own.
    const auto shape = [](const char* name) {
        return QIcon(QStringLiteral(KEYRILL_ICONS "/symbolic/apps/example.orlen.Keyrill") +
                     QLatin1String(name))
            .pixmap(22)
            .toImage()
            .convertToFormat(QImage::Format_Alpha8);
    };
    const QImage normal = shape("-symbolic.svg");
    const QImage busy = shape("-busy-symbolic.svg");
    ASSERT_FALSE(normal.isNull() || busy.isNull());
    EXPECT_NE(normal, busy);
}

TEST(StatusIconTest, isPaintedByThePanelsThatAreKnownToDoSo) {
    for (const char* desktops : {"GNOME", "ubuntu:GNOME", "XFCE"})
        EXPECT_TRUE(paintsSymbolicIcons(QLatin1String(desktops))) << desktops;
    for (const char* desktops : {"", "KDE", "LXQt", "MATE", "sway", "Budgie:GNOME", "NOTGNOME"})
        EXPECT_FALSE(paintsSymbolicIcons(QLatin1String(desktops))) << desktops;
}

TEST(StatusIconTest, hasNoNameWhereAPanelWouldShowTheThemesIconAsItLies) {
    const CurrentDesktop desktop("LXQt");
    EXPECT_EQ(statusIcon(StatusImage::normal).name(), "");
}

TEST(StatusIconTest, hasTheNameThatThemesKnowItBy) {
    const CurrentDesktop desktop("XFCE");
    EXPECT_EQ(statusIcon(StatusImage::normal).name(), "example.orlen.Keyrill-symbolic");
    EXPECT_EQ(statusIcon(StatusImage::busy).name(), "example.orlen.Keyrill-busy-symbolic");
}

TEST(StatusIconTest, isDrawnLightAndDarkForPanelsOfAnyColour) {
    EXPECT_NE(statusIcon(StatusImage::normal).pixmap(22).toImage(),
              statusIcon(StatusImage::busy).pixmap(22).toImage());
    for (const int size : {16, 22, 64}) {
        const QImage image = statusIcon(StatusImage::normal).pixmap(size).toImage();
        int lightest = 0;
        int darkest = 255;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor colour = image.pixelColor(x, y);
                if (colour.alpha() < 200) continue;
                lightest = std::max(lightest, colour.lightness());
                darkest = std::min(darkest, colour.lightness());
            }
        }
        EXPECT_GT(lightest, 220) << size;
        EXPECT_LT(darkest, 64) << size;
    }
}

}  // namespace
