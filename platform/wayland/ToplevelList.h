// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Result.h"
#include "platform/wayland/WaylandConnection.h"

struct zwlr_foreign_toplevel_handle_v1;
struct zwlr_foreign_toplevel_manager_v1;

namespace wayland {

/// The windows of all programs as they were when this was made
/// (wlr-foreign-toplevel-management-unstable-v1), on a connection of its own.
class ToplevelList {
  public:
    /// Fails with a hint where the compositor tells nobody of windows.
    static Result<std::unique_ptr<ToplevelList>> open();
    ~ToplevelList();
    ToplevelList(const ToplevelList&) = delete;
    ToplevelList& operator=(const ToplevelList&) = delete;

    struct Toplevel {
        zwlr_foreign_toplevel_handle_v1* handle = nullptr;
        /// A native window's app_id, an X11 window's class.
        std::string program;
        bool isActive = false;
    };
    /// The names of all programs that have a window, each once, the one that keys go to first.
    std::vector<std::string> programs() const;
    /// One of that program, in any case; the one that keys go to before others. Null if there is none.
    const Toplevel* find(std::string_view program) const;
    /// Returns when the compositor has given it the focus.
    Result<void> activate(const Toplevel& toplevel);

  private:
    explicit ToplevelList(std::unique_ptr<WaylandConnection> connection)
        : m_connection(std::move(connection)) {}

    void listen();
    void add(zwlr_foreign_toplevel_handle_v1* handle);

    std::unique_ptr<WaylandConnection> m_connection;
    zwlr_foreign_toplevel_manager_v1* m_manager = nullptr;
    /// Listeners point to them.
    std::deque<Toplevel> m_toplevels;
};

}  // namespace wayland
