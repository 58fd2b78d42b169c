// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "platform/Notifications.h"

class BusLoop;

/// Messages by the notification service of the session bus (Desktop Notifications standard, version 1.2).
class BusNotifications : public Notifications {
  public:
    /// `sessionBus` is an address; without one nothing is shown. Connects in the background.
    BusNotifications(BusLoop& loop, const std::string& sessionBus);
    ~BusNotifications() override;
    BusNotifications(const BusNotifications&) = delete;
    BusNotifications& operator=(const BusNotifications&) = delete;

    /// Bytes that are no UTF-8 are shown as U+FFFD. While the connection is made, the last 16 messages wait.
    void post(std::string_view title, std::string_view text) override;

  private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};
