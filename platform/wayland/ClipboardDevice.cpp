// SPDX-License-Identifier: MIT
#include "platform/wayland/ClipboardDevice.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>
#include <wlr-data-control-unstable-v1-client-protocol.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

#include "platform/Sentence.h"

namespace wayland {

namespace {

/// What a text is called, the most exact name first.
constexpr std::array textTypes = {"text/plain;charset=utf-8", "UTF8_STRING", "text/plain", "TEXT", "STRING"};
/// Who reads nothing for so long gets no more.
constexpr int slowestReader = 2000;  // milliseconds

/// The standard has given the interface another name, and changed nothing else in it.
const wl_interface& standardManager() {
    static const wl_interface interface = [] {
        wl_interface renamed = zwlr_data_control_manager_v1_interface;
        renamed.name = "ext_data_control_manager_v1";
        renamed.version = 1;
        return renamed;
    }();
    return interface;
}

zwlr_data_control_manager_v1* bindManager(const WaylandConnection& connection) {
    void* const manager = connection.bind(standardManager(), 1);
    return static_cast<zwlr_data_control_manager_v1*>(
        manager != nullptr ? manager : connection.bind(zwlr_data_control_manager_v1_interface, 1));
}

}  // namespace

bool ClipboardDevice::isOffered(const WaylandConnection& connection) {
    return connection.seat() != nullptr && (connection.offers(standardManager()) ||
                                            connection.offers(zwlr_data_control_manager_v1_interface));
}

Result<std::unique_ptr<ClipboardDevice>> ClipboardDevice::open() {
    auto connection = WaylandConnection::open();
    if (!connection) return connection.error();
    std::unique_ptr<ClipboardDevice> device(new ClipboardDevice(std::move(connection).value()));
    if (device->m_device == nullptr) {
        return Error{
            sentence("Clipboard", "This compositor gives the clipboard to windows alone."),
            sentence("Clipboard", "Use a compositor with data control, such as sway, or an X11 session.")};
    }
    device->listen();
    const auto told = device->m_connection->roundTrip();
    if (!told) return told.error();
    return device;
}

ClipboardDevice::ClipboardDevice(std::unique_ptr<WaylandConnection> connection)
    : m_connection(std::move(connection)), m_manager(bindManager(*m_connection)) {
    if (m_manager != nullptr && m_connection->seat() != nullptr) {
        m_device = zwlr_data_control_manager_v1_get_data_device(m_manager, m_connection->seat());
    }
}

ClipboardDevice::~ClipboardDevice() {
    drop(m_announced);
    drop(m_selection);
    if (m_source != nullptr) zwlr_data_control_source_v1_destroy(m_source);
    if (m_device != nullptr) zwlr_data_control_device_v1_destroy(m_device);
    if (m_manager != nullptr) zwlr_data_control_manager_v1_destroy(m_manager);
}

void ClipboardDevice::listen() {
    using Device = ClipboardDevice;
    static constexpr zwlr_data_control_offer_v1_listener offerListener{
        .offer = [](void* self, zwlr_data_control_offer_v1* offer, const char* type) {
            auto& device = *static_cast<Device*>(self);
            if (offer == device.m_announced.offer) device.m_announced.types.emplace_back(type);
        }};
    static constexpr zwlr_data_control_device_v1_listener listener{
        .data_offer =
            [](void* self, zwlr_data_control_device_v1*, zwlr_data_control_offer_v1* offer) {
                auto& device = *static_cast<Device*>(self);
                device.drop(device.m_announced);
                device.m_announced.offer = offer;
                zwlr_data_control_offer_v1_add_listener(offer, &offerListener, self);
            },
        .selection =
            [](void* self, zwlr_data_control_device_v1*, zwlr_data_control_offer_v1* offer) {
                auto& device = *static_cast<Device*>(self);
                device.drop(device.m_selection);
                if (offer != nullptr) device.m_selection = std::exchange(device.m_announced, {});
            },
        .finished = [](void*, zwlr_data_control_device_v1*) {},
        .primary_selection =
            [](void* self, zwlr_data_control_device_v1*, zwlr_data_control_offer_v1* offer) {
                auto& device = *static_cast<Device*>(self);
                if (offer != nullptr) device.drop(device.m_announced);
            }};
    zwlr_data_control_device_v1_add_listener(m_device, &listener, this);
}

void ClipboardDevice::drop(Offer& offer) const {
    if (offer.offer != nullptr) zwlr_data_control_offer_v1_destroy(offer.offer);
    offer = {};
}

Result<void> ClipboardDevice::own(std::string text) {
    static constexpr zwlr_data_control_source_v1_listener listener{
        .send = [](void* self, zwlr_data_control_source_v1*, const char* /*type*/,
                   int file) { static_cast<const ClipboardDevice*>(self)->give(Descriptor(file)); },
        .cancelled =
            [](void* self, zwlr_data_control_source_v1* source) {
                auto& device = *static_cast<ClipboardDevice*>(self);
                zwlr_data_control_source_v1_destroy(source);
                if (source == device.m_source) device.m_source = nullptr;
            }};
    m_text = std::move(text);
    m_source = zwlr_data_control_manager_v1_create_data_source(m_manager);
    zwlr_data_control_source_v1_add_listener(m_source, &listener, this);
    for (const char* type : textTypes) zwlr_data_control_source_v1_offer(m_source, type);
    zwlr_data_control_device_v1_set_selection(m_device, m_source);
    return m_connection->roundTrip();
}

void ClipboardDevice::serve(int wakeup) {
    m_wakeup = wakeup;
    m_connection->dispatch();
    while (isOwner() && !m_connection->isBroken()) {
        std::array<pollfd, 2> entries{{{m_connection->fileDescriptor(), POLLIN, 0}, {wakeup, POLLIN, 0}}};
        poll(entries.data(), entries.size(), -1);
        if (entries[1].revents != 0) return;
        m_connection->dispatch();
    }
}

/// A pipe takes as much as it holds; who does not go on reading is given up.
void ClipboardDevice::give(const Descriptor& reader) const {
    fcntl(reader.number(), F_SETFL, fcntl(reader.number(), F_GETFL) | O_NONBLOCK);
    for (std::size_t given = 0; given < m_text.size();) {
        const ssize_t more = write(reader.number(), m_text.data() + given, m_text.size() - given);
        if (more > 0) given += static_cast<std::size_t>(more);
        if (more < 0 && errno != EAGAIN && errno != EINTR) return;
        std::array<pollfd, 2> entries{{{reader.number(), POLLOUT, 0}, {m_wakeup, POLLIN, 0}}};
        if (more < 0 && poll(entries.data(), entries.size(), slowestReader) <= 0) return;
        if (entries[1].revents != 0) return;
    }
}

Result<Descriptor> ClipboardDevice::receive() {
    const auto told = m_connection->roundTrip();
    if (!told) return told.error();
    const auto& types = m_selection.types;
    const auto* const type = std::find_if(textTypes.begin(), textTypes.end(), [&](const char* one) {
        return std::find(types.begin(), types.end(), one) != types.end();
    });
    if (m_selection.offer == nullptr || type == textTypes.end()) return Descriptor();
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        return Error{sentence("Clipboard", "No more files can be opened."),
                     sentence("Clipboard", "Close programs.")};
    Descriptor reader(ends[0]);
    const Descriptor writer(ends[1]);
    zwlr_data_control_offer_v1_receive(m_selection.offer, *type, writer.number());
    m_connection->flush();
    return reader;
}

}  // namespace wayland
