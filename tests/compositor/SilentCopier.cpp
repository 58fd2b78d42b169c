// SPDX-License-Identifier: MIT
#include "compositor/SilentCopier.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>
#include <wayland-client.h>
#include <wlr-data-control-unstable-v1-client-protocol.h>

#include <array>
#include <stdexcept>
#include <string_view>
#include <thread>
#include <vector>

#include "platform/Descriptor.h"

struct SilentCopier::Parts {
    std::string firstBytes;
    wl_display* display = nullptr;
    wl_registry* registry = nullptr;
    wl_seat* seat = nullptr;
    zwlr_data_control_manager_v1* manager = nullptr;
    zwlr_data_control_device_v1* device = nullptr;
    zwlr_data_control_source_v1* source = nullptr;
    /// Of what others have copied.
    std::vector<zwlr_data_control_offer_v1*> offers;
    std::vector<Descriptor> readers;
    Descriptor wakeup{eventfd(0, EFD_CLOEXEC)};
    std::thread thread;

    static void added(void* self, wl_registry* registry, std::uint32_t name, const char* interface,
                      std::uint32_t /*version*/) {
        auto& parts = *static_cast<Parts*>(self);
        if (std::string_view(interface) == wl_seat_interface.name)
            parts.seat = static_cast<wl_seat*>(wl_registry_bind(registry, name, &wl_seat_interface, 1));
        if (std::string_view(interface) == zwlr_data_control_manager_v1_interface.name) {
            parts.manager = static_cast<zwlr_data_control_manager_v1*>(
                wl_registry_bind(registry, name, &zwlr_data_control_manager_v1_interface, 1));
        }
    }

    void give(int file) {
        readers.emplace_back(file);
        if (write(file, firstBytes.data(), firstBytes.size()) < 0) readers.pop_back();
    }

    void copy() {
        static constexpr zwlr_data_control_source_v1_listener listener{
            .send = [](void* self, zwlr_data_control_source_v1*, const char*,
                       int file) { static_cast<Parts*>(self)->give(file); },
            .cancelled = [](void*, zwlr_data_control_source_v1*) {}};
        static constexpr zwlr_data_control_device_v1_listener deviceListener{
            .data_offer =
                [](void* self, zwlr_data_control_device_v1*, zwlr_data_control_offer_v1* offer) {
                    static_cast<Parts*>(self)->offers.push_back(offer);
                },
            .selection = [](void*, zwlr_data_control_device_v1*, zwlr_data_control_offer_v1*) {},
            .finished = [](void*, zwlr_data_control_device_v1*) {},
            .primary_selection = [](void*, zwlr_data_control_device_v1*, zwlr_data_control_offer_v1*) {}};
        source = zwlr_data_control_manager_v1_create_data_source(manager);
        zwlr_data_control_source_v1_add_listener(source, &listener, this);
        zwlr_data_control_source_v1_offer(source, "text/plain;charset=utf-8");
        device = zwlr_data_control_manager_v1_get_data_device(manager, seat);
        zwlr_data_control_device_v1_add_listener(device, &deviceListener, this);
        zwlr_data_control_device_v1_set_selection(device, source);
        wl_display_roundtrip(display);
    }

    void end() const {
        for (zwlr_data_control_offer_v1* offer : offers) zwlr_data_control_offer_v1_destroy(offer);
        zwlr_data_control_source_v1_destroy(source);
        zwlr_data_control_device_v1_destroy(device);
        zwlr_data_control_manager_v1_destroy(manager);
        wl_seat_destroy(seat);
        wl_registry_destroy(registry);
        wl_display_disconnect(display);
    }

    void serve() const {
        for (;;) {
            std::array<pollfd, 2> entries{
                {{wl_display_get_fd(display), POLLIN, 0}, {wakeup.number(), POLLIN, 0}}};
            poll(entries.data(), entries.size(), -1);
            if (entries[1].revents != 0 || wl_display_dispatch(display) < 0) return;
        }
    }
};

SilentCopier::SilentCopier(const std::string& socket, std::string firstBytes)
    : m_parts(std::make_unique<Parts>()) {
    m_parts->firstBytes = std::move(firstBytes);
    m_parts->display = wl_display_connect(socket.c_str());
    if (m_parts->display == nullptr) throw std::runtime_error("no compositor at " + socket);
    static constexpr wl_registry_listener listener{
        .global = Parts::added, .global_remove = [](void*, wl_registry*, std::uint32_t) {}};
    m_parts->registry = wl_display_get_registry(m_parts->display);
    wl_registry_add_listener(m_parts->registry, &listener, m_parts.get());
    wl_display_roundtrip(m_parts->display);
    if (m_parts->manager == nullptr) throw std::runtime_error("the compositor has no data control");
    m_parts->copy();
    m_parts->thread = std::thread([this] { m_parts->serve(); });
}

SilentCopier::~SilentCopier() {
    eventfd_write(m_parts->wakeup.number(), 1);
    m_parts->thread.join();
    m_parts->end();
}
