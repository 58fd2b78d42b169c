// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

#include <functional>
#include <optional>
#include <string>

#include "platform/linux/BusContext.h"

/// A question to one of the desktop's portals, whose answer comes as a signal of an object that the caller
/// names (org.freedesktop.portal.Request). One at a time.
///
/// Begun and answered in the thread's default main context.
class PortalRequest {
  public:
    enum class End {
        agreed,
        /// The user has said no.
        refused,
        /// The portal has ended it for another reason, or the call itself has failed.
        failed,
        /// Nobody has answered in time.
        silent,
    };
    /// `results` is null where there are none. It may be begun again, or destroyed, from within.
    using Ended = std::function<void(End end, GVariant* results)>;

    struct Call {
        /// "org.freedesktop.portal.GlobalShortcuts"
        const char* interface = nullptr;
        const char* member = nullptr;
        /// What the call is given, with its last argument, the options, made of what is in the builder.
        std::function<GVariant*(GVariantBuilder* options)> parameters;
        /// In seconds.
        unsigned patience = 0;
    };

    PortalRequest() = default;
    ~PortalRequest() { stop(); }
    PortalRequest(const PortalRequest&) = delete;
    PortalRequest& operator=(const PortalRequest&) = delete;

    /// In place of one that is under way. `options` are those of the call beside the request's own.
    void begin(GDBusConnection* bus, const Call& call, GVariantBuilder& options, Ended ended);
    /// Nobody is told any more, and the desktop is told so.
    void stop();

  private:
    static void heard(GDBusConnection* bus, const char* sender, const char* path, const char* interface,
                      const char* member, GVariant* parameters, void* self);
    static void called(GObject* bus, GAsyncResult* result, void* self);
    static gboolean tooLate(void* self);
    std::string listen();
    void forget();
    void end(End end, GVariant* results);

    GObjectPointer<GDBusConnection> m_bus;
    GObjectPointer<GCancellable> m_cancellable;
    Ended m_ended;
    std::string m_path;
    guint m_response = 0;
    GSource* m_timer = nullptr;
};

/// The session that a CreateSession has made; empty if its results name none.
std::optional<std::string> portalSessionIn(GVariant* results);

/// An empty a{sv}.
GVariantBuilder portalOptions();
