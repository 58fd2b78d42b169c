// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/Notifications.h"
#include "platform/fake/Journal.h"

/// Remembers what was shown.
class FakeNotifications : public Notifications {
  public:
    explicit FakeNotifications(Journal& journal) : m_journal(journal) {}

    struct Message {
        std::string title;
        std::string text;

        friend bool operator==(const Message&, const Message&) = default;
    };

    void post(std::string_view title, std::string_view text) override {
        m_journal.note("post", title, text);
        m_messages.push_back({std::string(title), std::string(text)});
    }

    const std::vector<Message>& messages() const { return m_messages; }

  private:
    Journal& m_journal;
    std::vector<Message> m_messages;
};
