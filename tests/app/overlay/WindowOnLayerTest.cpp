// SPDX-License-Identifier: MIT
#include "app/overlay/WindowOnLayer.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include "app/AppTest.h"
#include "app/RunLoop.h"
#include "app/overlay/Fades.h"
#include "app/overlay/MultiplePlayWindow.h"
#include "app/overlay/RecorderWindow.h"
#include "platform/Modifiers.h"
#include "support/Child.h"
#include "support/Keys.h"

namespace {

constexpr std::uint32_t escape = 0xff1b;
constexpr std::uint32_t returnSymbol = 0xff0d;
constexpr std::uint32_t backSpace = 0xff08;

const LayerKey five{
    .keycode = 14, .symbol = '5', .character = U'5', .text = "5", .repeatDelay = 1, .repeatInterval = 1};

/// A session that offers layers, on a screen with four pixels for each.
class WindowOnLayerTest : public AppTest {
  protected:
    WindowOnLayerTest() { layers.offer({1280, 800}, 2); }

    /// Until all has been delivered that waits for it.
    static void settle() { QCoreApplication::processEvents(); }
    void type(const std::string& text) {
        for (const char character : text) layers.userTypes(static_cast<unsigned char>(character), character);
        settle();
    }
    void type(std::uint32_t symbol) {
        layers.userTypes(symbol, 0);
        settle();
    }
    /// As long as twenty repeats would take.
    static void waitForRepeats() {
        runLoopWith([] { QTimer::singleShot(20 * five.repeatInterval, [] { QCoreApplication::exit(0); }); });
    }
    /// With something to play.
    MultiplePlayWindow& openPrompt() {
        controller.recordMacro(nullptr);
        AppTest::type(key::a);
        controller.stopMacro(nullptr);
        controller.showMultiplePlayGui();
        layers.giveKeyboard();
        settle();
        return *controller.multiplePlayWindow();
    }
    /// The greatest opacity of any pixel, 0 to 255.
    std::uint32_t opacity() const {
        std::uint32_t greatest = 0;
        for (const std::uint32_t pixel : layers.picture()) greatest = std::max(greatest, pixel >> 24U);
        return greatest;
    }
    void click(LayerPoint place) {
        layers.userPoints(LayerPointer::Kind::motion, place);
        layers.userPoints(LayerPointer::Kind::press, place);
        layers.userPoints(LayerPointer::Kind::release, place);
        settle();
    }
    LayerPoint middleOf(const QWidget& widget) const {
        const QPoint middle = widget.mapTo(widget.window(), widget.rect().center());
        return {static_cast<double>(middle.x()), static_cast<double>(middle.y())};
    }

    FakeLayers& layers = platform().layers;
};

TEST_F(WindowOnLayerTest, showsTheRecorderWhileItIsRecorded) {
    EXPECT_FALSE(layers.isShown());
    controller.recordMacro(nullptr);
    ASSERT_TRUE(layers.isShown());
    EXPECT_EQ(layers.place(), (LayerPoint{1280 - 420 - 10, 30}));
    EXPECT_EQ(layers.content().layerSize(), (LayerSize{420, 60}));
    EXPECT_FALSE(layers.content().takesInput());
    controller.stopMacro(nullptr);
    EXPECT_FALSE(layers.isShown());
}

TEST_F(WindowOnLayerTest, paintsTheWindowWithItsOpacity) {
    controller.recordMacro(nullptr);
    // The picture is missing here, but not the ground of the text.
    controller.setMacroString("abc");
    setAlpha(*controller.recorderWindow(), 0);
    EXPECT_EQ(opacity(), 0U);
    setAlpha(*controller.recorderWindow(), 0.8);
    EXPECT_EQ(layers.picture().size(), 840U * 120U);
    EXPECT_NEAR(opacity(), 0.8 * 255, 1);
}

TEST_F(WindowOnLayerTest, refreshesWithEachFadeAndText) {
    controller.recordMacro(nullptr);
    settle();
    const int before = layers.refreshes();
    controller.recorderWindow()->setWindowOpacity(0.31);
    EXPECT_EQ(layers.refreshes(), before + 1);
    const auto blank = layers.picture();
    controller.setMacroString("abc");
    settle();
    EXPECT_GT(layers.refreshes(), before + 1);
    EXPECT_NE(layers.picture(), blank);
}

TEST_F(WindowOnLayerTest, asksTheWindowSystemForNoFocus) {
    openPrompt();
    controller.multiplePlayWindow()->close();
    EXPECT_EQ(windows.calls(), (Journal::Lines{"awaitFocusElsewhere(none)"}));
}

TEST_F(WindowOnLayerTest, givesWhatIsTypedToTheFieldOfThePrompt) {
    MultiplePlayWindow& prompt = openPrompt();
    EXPECT_TRUE(layers.content().takesInput());
    EXPECT_TRUE(prompt.isActiveWindow());
    type("34");
    EXPECT_EQ(prompt.timesText(), QStringLiteral("34"));
    type(backSpace);
    EXPECT_EQ(prompt.timesText(), QStringLiteral("3"));
}

TEST_F(WindowOnLayerTest, takesKeysOnlyWhileItHasTheKeyboard) {
    MultiplePlayWindow& prompt = openPrompt();
    layers.takeKeyboard();
    settle();
    EXPECT_FALSE(prompt.isActiveWindow());
    const QString before = prompt.timesText();
    type("5");
    EXPECT_EQ(prompt.timesText(), before);
    layers.giveKeyboard();
    settle();
    type("7");
    EXPECT_EQ(prompt.timesText(), QStringLiteral("7"));
}

TEST_F(WindowOnLayerTest, aLetterHeldWithControlIsACommand) {
    MultiplePlayWindow& prompt = openPrompt();
    type("12");
    layers.userTypes('a', 'a', modifier::control);
    settle();
    EXPECT_EQ(prompt.findChild<QLineEdit*>()->selectedText(), QStringLiteral("12"));
}

TEST_F(WindowOnLayerTest, escapeDismissesThePrompt) {
    openPrompt();
    type(escape);
    EXPECT_FALSE(layers.isShown());
    EXPECT_FALSE(controller.multiplePlayWindow()->isVisible());
}

TEST_F(WindowOnLayerTest, returnConfirmsThePrompt) {
    const MultiplePlayWindow& prompt = openPrompt();
    int confirmations = 0;
    QObject::connect(&prompt, &MultiplePlayWindow::confirmed, [&] { ++confirmations; });
    type(returnSymbol);
    EXPECT_EQ(confirmations, 1);
    EXPECT_FALSE(layers.isShown());
}

TEST_F(WindowOnLayerTest, aClickOnTheButtonConfirmsThePrompt) {
    const MultiplePlayWindow& prompt = openPrompt();
    int confirmations = 0;
    QObject::connect(&prompt, &MultiplePlayWindow::confirmed, [&] { ++confirmations; });
    click(middleOf(*prompt.findChild<QPushButton*>()));
    EXPECT_EQ(confirmations, 1);
}

TEST_F(WindowOnLayerTest, aPressThatEndsElsewhereIsNoClick) {
    const MultiplePlayWindow& prompt = openPrompt();
    int confirmations = 0;
    QObject::connect(&prompt, &MultiplePlayWindow::confirmed, [&] { ++confirmations; });
    layers.userPoints(LayerPointer::Kind::press, middleOf(*prompt.findChild<QPushButton*>()));
    layers.userPoints(LayerPointer::Kind::release, {1, 1});
    settle();
    EXPECT_EQ(confirmations, 0);
}

TEST_F(WindowOnLayerTest, aKeyThatIsHeldRepeats) {
    const MultiplePlayWindow& prompt = openPrompt();
    layers.keyChanges(five);
    EXPECT_TRUE(eventually([&] {
        settle();
        return prompt.timesText().size() >= 4;
    }));
    LayerKey released = five;
    released.isPress = false;
    layers.keyChanges(released);
    settle();
    const QString typed = prompt.timesText();
    waitForRepeats();
    EXPECT_EQ(prompt.timesText(), typed);
    EXPECT_EQ(typed, QString(typed.size(), u'5'));
}

TEST_F(WindowOnLayerTest, aKeyWhoseSymbolIsAnotherWhenItIsReleasedRepeatsNoLonger) {
    const MultiplePlayWindow& prompt = openPrompt();
    layers.keyChanges(five);
    layers.keyChanges(
        {.keycode = five.keycode, .symbol = '(', .character = U'(', .text = "(", .isPress = false});
    settle();
    const QString typed = prompt.timesText();
    waitForRepeats();
    EXPECT_EQ(prompt.timesText(), typed);
}

}  // namespace
