// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "platform/Result.h"
#include "platform/desktops/ForeignWindows.h"
#include "platform/wayland/WaylandConnection.h"

struct zwlr_foreign_toplevel_handle_v1;
struct zwlr_foreign_toplevel_manager_v1;

namespace wayland {

/// The windows of all programs as they were when this was made
/// (wlr-foreign-toplevel-management-unstable-v1), on a connection of its own.
class ToplevelList final : public ForeignWindows {
  public:
    /// Whether open() finds them there.
    static bool isOffered(const WaylandConnection& connection);

    /// Fails with a hint where the compositor tells nobody of windows.
    static Result<std::unique_ptr<ForeignWindows>> open();
    ~ToplevelList() override;
    ToplevelList(const ToplevelList&) = delete;
    ToplevelList& operator=(const ToplevelList&) = delete;

    std::vector<ForeignWindow> windows() const override;
    Result<void> activate(std::size_t place) override;

  private:
    struct Toplevel {
        zwlr_foreign_toplevel_handle_v1* handle = nullptr;
        ForeignWindow window;
    };

    explicit ToplevelList(std::unique_ptr<WaylandConnection> connection)
        : m_connection(std::move(connection)) {}

    void listen();
    static ForeignWindow& windowAt(void* toplevel) { return static_cast<Toplevel*>(toplevel)->window; }
    void add(zwlr_foreign_toplevel_handle_v1* handle);

    std::unique_ptr<WaylandConnection> m_connection;
    zwlr_foreign_toplevel_manager_v1* m_manager = nullptr;
    /// Listeners point to them.
    std::deque<Toplevel> m_toplevels;
};

}  // namespace wayland
