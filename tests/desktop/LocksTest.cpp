// SPDX-License-Identifier: MIT
//
// Caps Lock and Num Lock, as they were before a script is played, tapped while it is, and afterwards.
#include <array>
#include <fstream>

#include "cli/Play.h"
#include "desktop/DesktopTest.h"
#include "display/KeyboardProbe.h"
#include "display/Typist.h"
#include "support/Programs.h"

namespace {

constexpr std::array<std::uint8_t, 4> states{0, xmask::capsLock, xmask::numLock,
                                             xmask::capsLock | xmask::numLock};

std::string nameOfLocks(std::uint8_t locks) {
    switch (locks) {
        case xmask::capsLock:
            return "CapsLock";
        case xmask::numLock:
            return "NumLock";
        case 0:
            return "Neither";
        default:
            return "Both";
    }
}

/// A person and a terminal. The person's keys come by XTEST: the real keyboard of a nested server would bring
/// the locks of the server around it along.
class LocksTest : public testing::TestWithParam<std::uint8_t> {
  protected:
    static std::uint8_t tapped() { return GetParam(); }

    void tap(std::uint8_t locks) const {
        if ((locks & xmask::capsLock) != 0) typist.tap(xkey::capsLock);
        if ((locks & xmask::numLock) != 0) typist.tap(xkey::numLock);
    }
    /// Until the server has these locked and no others.
    void set(std::uint8_t locks) const {
        tap(probe.locked() ^ locks);
        EXPECT_EQ(probe.locked(), locks);
    }
    /// What the terminal gets next, once that many characters have come.
    std::string typedNext(std::size_t count) {
        const std::string all = terminal.typed(m_read + count);
        std::string next = all.substr(m_read);
        m_read = all.size();
        return next;
    }
    static std::string scriptThatTaps(std::uint8_t locks) {
        const std::string taps = std::string((locks & xmask::capsLock) != 0 ? "key code 57\n" : "") +
                                 ((locks & xmask::numLock) != 0 ? "key code 71\n" : "");
        return "tell application \"System Events\"\n" + strokes + taps + strokes + "end tell\n";
    }

    static inline const std::string strokes = "keystroke \"cD\"\nkey code {8, 2, 83}\nkeystroke \"xY\"\n";

    Desktop desktop;
    Terminal terminal{desktop.display()};
    KeyboardProbe probe{desktop.display()};
    Hands hands{desktop.display()};
    Typist typist{hands, std::chrono::milliseconds(5)};

  private:
    std::size_t m_read = 0;
};

TEST_P(LocksTest, textIsWhatTheScriptSaysAndKeyCodesFollowALockThatItHasTapped) {
    const std::string after = (tapped() & xmask::capsLock) != 0 ? "cDCD1xY" : "cDcd1xY";
    for (const std::uint8_t before : states) {
        SCOPED_TRACE(nameOfLocks(before));
        set(before);
        Play play(desktop.display(), scriptThatTaps(tapped()));
        EXPECT_EQ(play.program().wait(), 0) << play.output();
        EXPECT_EQ(typedNext(14), "cDcd1xY" + after);
        EXPECT_EQ(probe.locked(), before);
    }
}

TEST_P(LocksTest, whatTheUserTapsMeanwhileChangesNothingThatArrivesAndIsTheirsAfterwards) {
    for (const std::uint8_t before : states) {
        SCOPED_TRACE(nameOfLocks(before));
        set(before);
        std::string script = "tell application \"System Events\"\n";
        script.append(strokes).append("delay 2\n").append(strokes).append(strokes).append("end tell\n");
        Play play(desktop.display(), script);
        EXPECT_EQ(typedNext(7), "cDcd1xY");
        tap(tapped());
        EXPECT_EQ(play.program().wait(), 0) << play.output();
        EXPECT_EQ(typedNext(14), "cDcd1xYcDcd1xY");
        EXPECT_EQ(probe.locked(), before ^ tapped());
    }
}

TEST_P(LocksTest, theTrayProgramPutsBackWhatItsMacroHasTapped) {
    const std::string file = desktop.file("locks.keyrill");
    std::ofstream(file) << scriptThatTaps(tapped());
    set(xmask::numLock);
    const Child product({programs::keyrill, file}, desktop.options("product.log"));
    ASSERT_TRUE(eventually([this] { return desktop.isHotKeyTaken(xkey::m); }));
    typist.stroke({xkey::control, xkey::super, xkey::p});
    EXPECT_EQ(typedNext(14), (tapped() & xmask::capsLock) != 0 ? "cDcd1xYcDCD1xY" : "cDcd1xYcDcd1xY");
    EXPECT_TRUE(eventually([this] { return probe.locked() == xmask::numLock; }));
}

INSTANTIATE_TEST_SUITE_P(Tapped, LocksTest, testing::ValuesIn(states),
                         [](const auto& locks) { return nameOfLocks(locks.param); });

}  // namespace
