// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "platform/evdev/DeviceOpener.h"
#include "platform/linux/BusLoop.h"

class BusConnection;

namespace evdev {

/// Has keyboards opened by the service keyrill-access, which asks the user for his password. It revokes them
/// when this is closed, when the process ends, and when the session is no longer in front or is locked.
///
/// One that ends while it is needed takes nothing back: whenLost() tells.
///
/// Fails where the service is not installed, the user does not agree, or the session is not in front.
class AccessOpener final : public DeviceOpener {
  public:
    /// Whether the service is installed, or runs, as the system bus tells: asked for now, and waited for.
    static bool isInstalled(const std::string& systemBus);

    /// The address of the system bus (platform/linux/BusAddresses.h).
    explicit AccessOpener(std::string systemBus);
    ~AccessOpener() override;
    AccessOpener(const AccessOpener&) = delete;
    AccessOpener& operator=(const AccessOpener&) = delete;

    /// The service itself knows what it has opened already.
    void open(const std::set<std::string>& held, Question question, Opened opened) override;
    void whenLost(std::function<void(const Error& why)> lost) override { m_lost = std::move(lost); }
    void close() override;
    EventSource* source() override { return &m_loop; }

  private:
    struct Call;

    void ask();
    void answered(Result<std::vector<OpenedDevice>> answer);
    void fail(const Error& error);
    void lose(const Error& why);
    void watchService();

    BusLoop m_loop;
    std::string m_systemBus;
    std::unique_ptr<BusConnection> m_bus;
    Opened m_opened;
    std::function<void(const Error&)> m_lost;
    Question m_question = Question::avoided;
    /// What has come in answer to a question that another has taken the place of.
    std::vector<OpenedDevice> m_devices;
    Call* m_call = nullptr;
    bool m_asksAgain = false;
    /// The service has passed keyboards, and it alone can take them back.
    bool m_hasSome = false;
};

}  // namespace evdev
