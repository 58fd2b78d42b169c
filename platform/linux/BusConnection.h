// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/linux/BusContext.h"

/// A connection of our own to a message bus, made in the background, and made again when another bus comes in
/// the place of one that has died. The end of the bus does not end the process.
class BusConnection {
  public:
    using Answered = std::function<void(GDBusMessage* answer)>;
    using Heard = std::function<void(const char* sender, GVariant* parameters)>;

    /// Both are called from the loop: `opened` when it is there, `ended` when it is clear that there is none
    /// (any more). For an empty address neither is.
    BusConnection(BusLoop& loop, std::string address, std::function<void()> opened,
                  std::function<void()> ended);
    ~BusConnection();
    BusConnection(const BusConnection&) = delete;
    BusConnection& operator=(const BusConnection&) = delete;

    bool isOpen() const { return m_connection != nullptr; }
    bool isOpening() const { return m_isOpening; }
    /// Null unless it is open.
    GDBusConnection* get() const { return m_connection.get(); }
    const BusLoop& loop() const { return m_loop; }

    /// A method of an object, by its well-known name and path.
    struct Method {
        const char* name;
        const char* path;
        const char* interface;
        const char* member;
    };
    /// Calls a method; `answered` gets the answer, null if it is an error, and is not called once the
    /// connection is given up. The service is started only if asked for.
    void call(const Method& method, GVariant* parameters, bool starts, Answered answered);

    /// Hears a signal from now on, whoever sends it from wherever it is null; one whose first argument is
    /// that text unless `about` is null.
    void hear(const char* sender, const char* path, const char* interface, const char* member, Heard heard,
              const char* about = nullptr);

  private:
    static void onOpened(GObject* source, GAsyncResult* result, void* self);
    static void onClosed(GDBusConnection* connection, gboolean vanished, GError* error, void* self);
    static gboolean onRetry(void* self);
    void open();
    void retryLater();

    BusLoop& m_loop;
    std::string m_address;
    std::function<void()> m_opened;
    std::function<void()> m_ended;
    bool m_isOpening = false;
    bool m_hasBeenOpen = false;
    std::unique_ptr<GSource, FreeBy<g_source_unref>> m_retry;
    GObjectPointer<GCancellable> m_cancellable;
    GObjectPointer<GDBusConnection> m_connection;
    std::vector<guint> m_heard;
};
