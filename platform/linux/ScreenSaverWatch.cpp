// SPDX-License-Identifier: MIT
#include "platform/linux/ScreenSaverWatch.h"

#include <array>

namespace {

struct Saver {
    /// Of the service and of its interface.
    const char* name;
    const char* path;
};

/// The common one and those of desktops that have their own only.
constexpr std::array<Saver, 5> savers{{
    {"org.freedesktop.ScreenSaver", "/org/freedesktop/ScreenSaver"},
    {"org.gnome.ScreenSaver", "/org/gnome/ScreenSaver"},
    {"org.cinnamon.ScreenSaver", "/org/cinnamon/ScreenSaver"},
    {"org.mate.ScreenSaver", "/org/mate/ScreenSaver"},
    {"org.xfce.ScreenSaver", "/org/xfce/ScreenSaver"},
}};

bool isTrue(GVariant* parameters) {
    gboolean value = FALSE;
    if (parameters != nullptr && g_variant_is_of_type(parameters, G_VARIANT_TYPE("(b)")) == TRUE) {
        g_variant_get(parameters, "(b)", &value);
    }
    return value == TRUE;
}

}  // namespace

ScreenSaverWatch::ScreenSaverWatch(BusLoop& loop, const std::string& sessionBus)
    : m_connection(
          loop, sessionBus, [this] { listen(); }, [this] { forgetAll(); }) {}

ScreenSaverWatch::~ScreenSaverWatch() { forgetAll(); }

void ScreenSaverWatch::listen() {
    for (const Saver& saver : savers) {
        // From any path: some savers have more than one.
        m_connection.hear(
            nullptr, nullptr, saver.name, "ActiveChanged",
            [this](const char* sender, GVariant* parameters) { setActive(sender, isTrue(parameters)); });
        m_connection.call({saver.name, saver.path, saver.name, "GetActive"}, nullptr, false,
                          [this](GDBusMessage* answer) {
                              if (answer == nullptr || !isTrue(g_dbus_message_get_body(answer))) return;
                              setActive(g_dbus_message_get_sender(answer), true);
                          });
    }
}

void ScreenSaverWatch::setActive(const std::string& sender, bool active) {
    const auto known = m_active.find(sender);
    if (active == (known != m_active.end())) return;
    if (!active) {
        g_bus_unwatch_name(known->second);
        m_active.erase(known);
        return;
    }
    const BusLoop::Context::Scope scope(m_connection.loop());
    m_active[sender] =
        g_bus_watch_name_on_connection(m_connection.get(), sender.c_str(), G_BUS_NAME_WATCHER_FLAGS_NONE,
                                       nullptr, onVanished, this, nullptr);
}

void ScreenSaverWatch::onVanished(GDBusConnection* /*connection*/, const char* name, void* self) {
    static_cast<ScreenSaverWatch*>(self)->setActive(name, false);
}

void ScreenSaverWatch::forgetAll() {
    for (const auto& [sender, watch] : m_active) g_bus_unwatch_name(watch);
    m_active.clear();
}
