// SPDX-License-Identifier: MIT
#include "compositor/GnomeHands.h"

#include <stdexcept>
#include <string>

#include "compositor/BusClient.h"
#include "support/Keys.h"

namespace {

constexpr const char* service = "org.gnome.Mutter.RemoteDesktop";
constexpr std::uint8_t evdevOffset = 8;

}  // namespace

struct GnomeHands::Parts {
    explicit Parts(const std::string& address) : bus(address) {}

    void call(const char* member, GVariant* parameters) const {
        bus.call({service, session.c_str(), "org.gnome.Mutter.RemoteDesktop.Session", member}, parameters,
                 "()");
    }

    BusClient bus;
    std::string session;
};

GnomeHands::GnomeHands(const GnomeShell& shell)
    : m_parts(std::make_unique<Parts>(shell.environment().at("DBUS_SESSION_BUS_ADDRESS"))) {
    const auto session = m_parts->bus.call(
        {service, "/org/gnome/Mutter/RemoteDesktop", service, "CreateSession"}, nullptr, "(o)");
    const char* path = nullptr;
    g_variant_get(session.get(), "(&o)", &path);
    m_parts->session = path;
    m_parts->call("Start", nullptr);
    // The first key of a new keyboard is lost.
    const auto arrives = [&] {
        press(xkey::shift);
        const bool isDown = shell.evaluate("(global.get_pointer()[2] & 1) === 1") == "true";
        release(xkey::shift);
        return isDown;
    };
    if (!eventually(arrives)) throw std::runtime_error("GNOME takes no keys of its remote desktops");
}

GnomeHands::~GnomeHands() = default;

void GnomeHands::send(std::uint8_t keycode, bool press) {
    m_parts->call("NotifyKeyboardKeycode",
                  g_variant_new("(ub)", guint32(keycode - evdevOffset), press ? TRUE : FALSE));
}
