// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>

#include "desktop/DesktopTest.h"
#include "desktop/SavedMacro.h"
#include "desktop/StatusMenuClicks.h"
#include "display/CoreClient.h"

namespace {

using Milliseconds = std::chrono::milliseconds;

/// Lets the user's hands rest.
void pauseFor(Milliseconds duration) {
    const auto end = std::chrono::steady_clock::now() + duration;
    eventually([end] { return std::chrono::steady_clock::now() >= end; });
}

/// Plays, and tells by the server's clock how long after A the B is pressed.
Milliseconds playedPause(CoreClient& client, const Hands& hands) {
    const std::size_t before = client.events().size();
    hands.stroke({xkey::control, xkey::super, xkey::p});
    hands.finish();
    std::vector<std::uint32_t> presses;
    EXPECT_TRUE(eventually([&] {
        presses.clear();
        for (std::size_t i = before; i < client.events().size(); ++i) {
            const CoreClient::KeyEvent& event = client.events()[i];
            if (event.press && (event.keycode == xkey::a || event.keycode == xkey::b))
                presses.push_back(event.time);
        }
        return presses.size() == 2;
    }));
    return Milliseconds(presses.at(1) - presses.at(0));
}

TEST(PauseTest, aSavedPauseIsPlayedAsLongAsItWas) {
    Desktop desktop;
    desktop.startWindowManager();
    desktop.startTray();
    const Keyrill keyrill(desktop);
    StatusMenuClicks menu(desktop);
    CoreClient client(desktop.display());
    const Hands hands(desktop.display());

    hands.stroke({xkey::control, xkey::super, xkey::r});
    hands.tap(xkey::a);
    hands.finish();
    const auto typed = std::chrono::steady_clock::now();
    pauseFor(Milliseconds(700));
    menu.open();
    const auto beforeClick = std::chrono::steady_clock::now();
    menu.choose(2);
    const auto afterClick = std::chrono::steady_clock::now();
    hands.tap(xkey::b);
    hands.stroke({xkey::control, xkey::super, xkey::s});
    hands.finish();

    const std::string script = savedMacro(desktop);
    const std::size_t first = script.find("delay ", script.find("delay 0.01\n") + 1);
    ASSERT_NE(first, std::string::npos);
    const Milliseconds saved(std::lround(1000 * std::stod(script.substr(first + 6))));
    EXPECT_GE(saved, std::chrono::duration_cast<Milliseconds>(beforeClick - typed) - Milliseconds(20));
    EXPECT_LE(saved, std::chrono::duration_cast<Milliseconds>(afterClick - typed) + Milliseconds(20));

    // The machine may make a pause longer, hardly three in a row.
    Milliseconds played = Milliseconds::max();
    for (int i = 0; i < 3; ++i) played = std::min(played, playedPause(client, hands));
    // Between the keys lie the saved pause and the short one that follows each key and each pause.
    EXPECT_NEAR(static_cast<double>(played.count()), static_cast<double>(saved.count()) + 20, 20);
}

}  // namespace
