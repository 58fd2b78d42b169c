// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/Descriptor.h"
#include "platform/Result.h"
#include "platform/wayland/WaylandConnection.h"

struct zwlr_data_control_device_v1;
struct zwlr_data_control_manager_v1;
struct zwlr_data_control_offer_v1;
struct zwlr_data_control_source_v1;

namespace wayland {

/// The seat's clipboard on a connection of its own: one who has it, or one who asks for it. By data control,
/// the standard's or the one before (ext-data-control-v1, wlr-data-control-unstable-v1).
class ClipboardDevice {
  public:
    /// Whether open() finds one there.
    static bool isOffered(const WaylandConnection& connection);
    /// Fails with a hint where the compositor lets nobody without a window have the clipboard.
    static Result<std::unique_ptr<ClipboardDevice>> open();
    ~ClipboardDevice();
    ClipboardDevice(const ClipboardDevice&) = delete;
    ClipboardDevice& operator=(const ClipboardDevice&) = delete;

    /// Fills the clipboard; until it is filled anew, isOwner() answers true.
    Result<void> own(std::string text);
    bool isOwner() const { return m_source != nullptr; }
    const std::string& text() const { return m_text; }
    /// Waits for those who paste, and gives each the text, until `wakeup` is readable (-1 for none) or the
    /// clipboard is filled anew.
    void serve(int wakeup);

    /// Where the text that is there can be read; an empty one if there is none.
    Result<Descriptor> receive();

  private:
    explicit ClipboardDevice(std::unique_ptr<WaylandConnection> connection);

    struct Offer {
        zwlr_data_control_offer_v1* offer = nullptr;
        std::vector<std::string> types;
    };

    void listen();
    void give(const Descriptor& reader) const;
    void drop(Offer& offer) const;

    std::unique_ptr<WaylandConnection> m_connection;
    zwlr_data_control_manager_v1* m_manager = nullptr;
    zwlr_data_control_device_v1* m_device = nullptr;
    zwlr_data_control_source_v1* m_source = nullptr;
    std::string m_text;
    Offer m_announced;
    Offer m_selection;
    int m_wakeup = -1;
};

}  // namespace wayland
