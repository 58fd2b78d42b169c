// SPDX-License-Identifier: MIT
//
// What is typed while nothing is recorded is nowhere in the program's memory afterwards.
#include <signal.h>

#include <array>
#include <sstream>

#include "desktop/DesktopTest.h"
#include "desktop/ProcessMemory.h"
#include "display/CoreClient.h"
#include "display/Typist.h"
#include "support/Programs.h"

namespace {

/// A letter in each shape in which a program may have it: the keysym of a letter is its character.
struct Letter {
    char character;
    std::uint8_t xKey;
    std::uint8_t macKey;
};

/// Sixteen letters of which no word is made, by their places on a PC keyboard.
constexpr auto marker = std::to_array<Letter>({{'j', 44, 38},
                                               {'q', 24, 12},
                                               {'x', 53, 7},
                                               {'z', 52, 6},
                                               {'k', 45, 40},
                                               {'v', 55, 9},
                                               {'w', 25, 13},
                                               {'b', 56, 11},
                                               {'p', 33, 35},
                                               {'y', 29, 16},
                                               {'f', 41, 3},
                                               {'m', 58, 46},
                                               {'g', 42, 5},
                                               {'c', 54, 8},
                                               {'u', 30, 32},
                                               {'d', 40, 2}});

/// As many of them in order are no accident.
constexpr std::size_t fewest = 8;

template <typename Shape>
ProcessMemory::Bytes markerAs(Shape shape) {
    ProcessMemory::Bytes bytes;
    for (const Letter& letter : marker) bytes.push_back(static_cast<std::uint8_t>(shape(letter)));
    return bytes;
}

/// Every trace of the marker, in whatever shape, one line each.
std::string tracesIn(const ProcessMemory& memory) {
    constexpr int fromX = 8;
    constexpr int toUpper = 'A' - 'a';
    const std::vector<std::pair<const char*, ProcessMemory::Bytes>> shapes = {
        {"X key codes", markerAs([](const Letter& letter) { return letter.xKey; })},
        {"kernel's key codes", markerAs([](const Letter& letter) { return letter.xKey - fromX; })},
        {"key codes", markerAs([](const Letter& letter) { return letter.macKey; })},
        {"characters", markerAs([](const Letter& letter) { return letter.character; })},
        {"capitals", markerAs([](const Letter& letter) { return letter.character + toUpper; })}};
    std::ostringstream all;
    for (const auto& [name, sequence] : shapes) {
        for (const std::string& trace : memory.traces(sequence, fewest))
            all << name << " at " << trace << "\n";
    }
    return all.str();
}

enum class Receiver { terminal, locker };

/// Who gets what is typed, and whether the program is asleep meanwhile, so that all comes to it at once.
struct Typing {
    const char* name;
    Receiver receiver;
    bool asleep;
};

class TypedMarkerTest : public DesktopTest {
  protected:
    TypedMarkerTest() {
        EXPECT_TRUE(eventually([this] { return desktop.isHotKeyTaken(xkey::m); }));
        awaitSeen();
        EXPECT_EQ(tracesIn(ProcessMemory(keyrill.pid())), "") << "before anything was typed";
    }

    void typeMarker() const {
        const Hands hands(desktop.display());
        const Typist typist(hands, Typist::Gap(5));
        for (const Letter& letter : marker) typist.tap(letter.xKey);
    }
    void typeInto(const Terminal& receiver) const {
        std::string expected;
        for (const Letter& letter : marker) expected += letter.character;
        typeMarker();
        EXPECT_EQ(receiver.typed(marker.size()), expected);
    }
    /// As a screen locker does, which holds the keyboard.
    void typeIntoLocker(bool holdsMouse = false) const {
        CoreClient locker(desktop.display());
        if (holdsMouse) locker.grabPointer();
        locker.grabKeyboard();
        typeMarker();
        // Longer than a menu is let pass for one.
        if (holdsMouse) Typist(Hands(desktop.display()), Typist::Gap(0)).hold(std::chrono::milliseconds(500));
        EXPECT_TRUE(eventually([&] { return locker.events().size() == 2 * marker.size(); }));
    }
    /// When the program answers to a hot key it has seen all keys before that.
    void awaitSeen() const {
        startRecording();
        endRecording();
    }
    void startRecording() const {
        record();
        desktop.awaitWindow(title::overlay);
    }
    void endRecording() const {
        stop();
        ASSERT_TRUE(eventually([this] { return !desktop.shows(title::overlay); }));
    }

    Terminal terminal{desktop.display()};
    Child keyrill{{programs::keyrill}, desktop.options("product.log")};
};

class KeptSecretsTest : public TypedMarkerTest, public testing::WithParamInterface<Typing> {};

TEST_P(KeptSecretsTest, areNowhereInTheMemory) {
    if (GetParam().asleep) keyrill.signal(SIGSTOP);
    GetParam().receiver == Receiver::terminal ? typeInto(terminal) : typeIntoLocker();
    if (GetParam().asleep) keyrill.signal(SIGCONT);
    awaitSeen();
    EXPECT_EQ(tracesIn(ProcessMemory(keyrill.pid())), "");
}

INSTANTIATE_TEST_SUITE_P(TypedInto, KeptSecretsTest,
                         testing::Values(Typing{"terminal", Receiver::terminal, false},
                                         Typing{"locker", Receiver::locker, false},
                                         Typing{"terminalAtOnce", Receiver::terminal, true},
                                         Typing{"lockerAtOnce", Receiver::locker, true}),
                         [](const auto& typing) { return typing.param.name; });

/// One that holds the mouse as well, which tells it from a menu, and that people look at before they type.
TEST_F(TypedMarkerTest, isNowhereThoughItWasTypedIntoALockerWhileARecordingLasts) {
    startRecording();
    typeIntoLocker(true);
    endRecording();
    EXPECT_EQ(tracesIn(ProcessMemory(keyrill.pid())), "");
}

/// The judge himself: a macro keeps what was typed for as long as it is wanted.
TEST_F(TypedMarkerTest, isFoundWhereItWasRecorded) {
    startRecording();
    typeInto(terminal);
    endRecording();
    EXPECT_NE(tracesIn(ProcessMemory(keyrill.pid())), "");
}

}  // namespace
