// SPDX-License-Identifier: MIT
#include "compositor/Swaylock.h"

#include <signal.h>

#include <fstream>
#include <stdexcept>

#include "compositor/ScreenPicture.h"
#include "compositor/Sway.h"
#include "support/Child.h"

Swaylock::Swaylock(const Sway& sway)
    : m_sway(sway), m_file(sway.environment().at("XDG_RUNTIME_DIR") + "/locker") {
    // Sway takes dollars for its own variables.
    std::ofstream(m_file + ".sh") << "echo $$ > " << m_file << "\nexec swaylock --color 203040\n";
    m_sway.message({"exec", "sh " + m_file + ".sh"});
    const auto isPainted = [&sway] { return ScreenPicture(sway).at(0, 0) == colour; };
    if (!eventually([&] { return sway.hasLayerKeys() && isPainted(); }))
        throw std::runtime_error("swaylock does not lock");
}

void Swaylock::open() {
    kill(static_cast<pid_t>(std::stol(contentOf(m_file))), SIGUSR1);
    if (!eventually([this] { return !m_sway.hasLayerKeys(); }))
        throw std::runtime_error("swaylock does not open");
}
