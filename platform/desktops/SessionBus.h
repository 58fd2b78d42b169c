// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "platform/Result.h"
#include "platform/linux/BusConnection.h"
#include "platform/linux/BusContext.h"

/// The session bus, for questions to the desktop whose answers are waited for, and for its signals.
///
/// Signals come in update() alone. A bus that dies is found again when another one comes in its place.
class SessionBus {
  public:
    using Method = BusConnection::Method;

    /// What the process's environment says.
    static std::string addressOfProcess();

    /// At that address. Waits until it is there, or it is clear that there is
    /// none; two seconds at the most.
    SessionBus() : SessionBus(addressOfProcess()) {}
    explicit SessionBus(const std::string& address);
    SessionBus(const SessionBus&) = delete;
    SessionBus& operator=(const SessionBus&) = delete;

    bool isOpen() const { return m_connection.isOpen(); }

    /// Who is told, in update(), that another bus has come in the place of one that had died: what was heard
    /// and asked there is gone. For the life of the bus.
    void whenReplaced(std::function<void()> replaced) { m_replaced.push_back(std::move(replaced)); }

    /// Whether a service that is not there yet is started by a question to it.
    enum class Starts { no, yes };
    /// The answer, of that type ("(u)", null for any), for which it waits two seconds at the most; of a
    /// service that is started, until 25 after the process first asked for it. Fails where nobody has the
    /// name, and where he answers with an error: the message is his.
    Result<GVariantPointer> ask(const Method& method, GVariant* parameters, const char* type,
                                Starts starts = Starts::no) const;
    /// The same without waiting: `answered` is told in update(), or never where the bus dies.
    void call(const Method& method, GVariant* parameters, BusConnection::Answered answered,
              Starts starts = Starts::no);
    /// Null unless it is open; with it, for what is told in update().
    GDBusConnection* get() const { return m_connection.get(); }
    const BusLoop& loop() const { return m_loop; }
    /// Whether somebody has that name.
    bool has(const char* name) const;

    /// Who has that name; empty if nobody has.
    std::string ownerOf(const char* name) const;
    /// Under which name others reach this connection; empty where it is not open.
    std::string ownName() const;

    /// A method of ours, called with one text.
    using Called = std::function<void(const std::string& caller, const std::string& text)>;
    /// Takes calls of it in update(), until the bus dies. Those with anything else are refused.
    Result<void> serve(const char* path, const char* interface, const char* member, Called called);

    /// As BusConnection has it, but also on a bus that comes later.
    void hear(const char* sender, const char* path, const char* interface, const char* member,
              BusConnection::Heard heard);

    using OwnerChanged = std::function<void(bool wasThere, bool isThere)>;
    /// Somebody has taken that name, given it up, or come in another's place.
    void hearOwner(const char* name, OwnerChanged changed);

    /// Readable when update() has something to do.
    int fileDescriptor() const { return m_loop.fileDescriptor(); }
    void update() const { m_loop.update(); }
    /// For a program that hears signals alone, and asks for no events elsewhere.
    EventSource& eventSource() { return m_loop; }

  private:
    struct Hearing {
        std::string sender;
        std::string path;
        std::string interface;
        std::string member;
        BusConnection::Heard heard;
    };

    void opened();
    void listen(const Hearing& hearing);

    std::vector<Hearing> m_hearings;
    std::vector<std::function<void()>> m_replaced;
    bool m_hasBeenOpen = false;
    BusLoop m_loop;
    BusConnection m_connection;
};
