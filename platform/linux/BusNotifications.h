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

    using Notifications::post;
    /// Bytes that are no UTF-8 are shown as U+FFFD; of a title and of a text 8192 bytes at most. At most 16
    /// messages are on their way to the service; until it has answered, the last 16 others wait. One that is
    /// known by then is sent a message without a turn of the loop.
    /// `unshown` is not called for one that gave way to later ones.
    void post(std::string_view title, std::string_view text, Unshown unshown) override;

  private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};
