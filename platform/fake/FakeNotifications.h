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

    using Notifications::post;
    void post(std::string_view title, std::string_view text, Unshown unshown) override {
        m_journal.note("post", title, text);
        m_messages.push_back({std::string(title), std::string(text)});
        if (!m_isShown && unshown) unshown();
    }
    /// From now on nobody shows messages.
    void losePresenter() { m_isShown = false; }

    const std::vector<Message>& messages() const { return m_messages; }

  private:
    Journal& m_journal;
    std::vector<Message> m_messages;
    bool m_isShown = true;
};
