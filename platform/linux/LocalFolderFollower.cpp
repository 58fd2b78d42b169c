// SPDX-License-Identifier: MIT
#include "platform/linux/LocalFolderFollower.h"

#include <poll.h>
#include <sys/eventfd.h>

#include <algorithm>
#include <array>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

#include "platform/Descriptor.h"
#include "platform/SignalsElsewhere.h"
#include "platform/linux/FolderTree.h"

namespace {

using Time = std::chrono::steady_clock::time_point;

Descriptor eventCounter() { return Descriptor(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)); }

void wake(const Descriptor& counter) {
    // A full counter wakes as well.
    [[maybe_unused]] const int ignored = eventfd_write(counter.number(), 1);
}

void sleepAgain(const Descriptor& counter) {
    eventfd_t count = 0;
    [[maybe_unused]] const int ignored = eventfd_read(counter.number(), &count);
}

}  // namespace

/// What the thread and the main thread share. The thread holds it as long as it lives, which may be longer
/// than the follower.
class LocalFolderFollower::Reader {
  public:
    Reader() = default;

    const Descriptor& news() const { return m_news; }

    void begin(const std::shared_ptr<Reader>& self, const std::string& folder, const std::string& ending) {
        {
            const std::lock_guard lock(m_mutex);
            m_wish = Wish{folder, ending};
            m_told = {};
            m_hasTold = false;
            m_found.reset();
        }
        wake(m_orders);
        if (std::exchange(m_hasBegun, true)) return;
        const SignalsElsewhere scope;
        std::thread([self] { self->run(); }).detach();
    }

    /// Waits for the thread, but not for the folder.
    void end() {
        constexpr std::chrono::milliseconds patience{100};
        std::unique_lock lock(m_mutex);
        m_isOver = true;
        wake(m_orders);
        if (m_hasBegun) m_ended.wait_for(lock, patience, [this] { return m_hasEnded; });
    }

    /// What was found and not taken before, as changes from what was taken.
    std::optional<FolderChanges> take() {
        sleepAgain(m_news);
        const std::lock_guard lock(m_mutex);
        if (!m_found) return std::nullopt;
        FolderChanges changes = changesBetween(m_told.files, m_found->files);
        const bool isNews =
            !std::exchange(m_hasTold, true) || changes != FolderChanges{} || m_found->faults != m_told.faults;
        m_told = *std::exchange(m_found, std::nullopt);
        if (!isNews) return std::nullopt;
        changes.faults = m_told.faults;
        return changes;
    }

  private:
    struct Wish {
        std::string folder;
        std::string ending;
    };
    struct Content {
        FolderListing files;
        std::vector<Error> faults;
    };

    void run() {
        std::optional<FolderTree> tree;
        while (!isOver()) {
            if (auto wish = takeWish()) tree.emplace(wish->folder, wish->ending);
            tree->refresh();
            tell({tree->files(), tree->faults()});
            awaitChange(*tree);
        }
        const std::lock_guard lock(m_mutex);
        m_hasEnded = true;
        m_ended.notify_all();
    }

    bool isOver() {
        const std::lock_guard lock(m_mutex);
        return m_isOver;
    }

    std::optional<Wish> takeWish() {
        sleepAgain(m_orders);
        const std::lock_guard lock(m_mutex);
        return std::exchange(m_wish, std::nullopt);
    }

    void tell(Content content) {
        const std::lock_guard lock(m_mutex);
        // Of another folder than is wished by now nothing is told.
        if (m_wish) return;
        m_found = std::move(content);
        wake(m_news);
    }

    /// Until something has happened and it is calm again, or there is another order.
    void awaitChange(FolderTree& tree) {
        constexpr Time never = Time::max();
        Time until = never;
        Time atLatest = never;
        while (true) {
            std::array<pollfd, 2> sources{
                {{m_orders.number(), POLLIN, 0}, {tree.fileDescriptor(), POLLIN, 0}}};
            poll(sources.data(), sources.size(), millisecondsUntil(until));
            if (sources[0].revents != 0) return;
            const Time now = std::chrono::steady_clock::now();
            if (sources[1].revents != 0 && tree.takeEvents()) {
                if (atLatest == never) atLatest = now + latest;
                until = std::min(now + calm, atLatest);
            }
            if (now >= until) return;
        }
    }

    static int millisecondsUntil(Time time) {
        if (time == Time::max()) return -1;
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(time - std::chrono::steady_clock::now());
        return static_cast<int>(std::max<std::int64_t>(left.count(), 0));
    }

    const Descriptor m_news = eventCounter();
    const Descriptor m_orders = eventCounter();
    std::mutex m_mutex;
    std::condition_variable m_ended;
    bool m_hasBegun = false;
    bool m_isOver = false;
    bool m_hasEnded = false;
    std::optional<Wish> m_wish;
    std::optional<Content> m_found;
    Content m_told;
    bool m_hasTold = false;
};

LocalFolderFollower::LocalFolderFollower() : m_reader(std::make_shared<Reader>()) {}

LocalFolderFollower::~LocalFolderFollower() { m_reader->end(); }

void LocalFolderFollower::follow(const std::string& folder, const std::string& ending, Observer observer) {
    m_observer = std::move(observer);
    m_reader->begin(m_reader, folder, ending);
}

int LocalFolderFollower::fileDescriptor() const { return m_reader->news().number(); }

void LocalFolderFollower::dispatch() {
    const std::optional<FolderChanges> changes = m_reader->take();
    if (changes && m_observer) m_observer(*changes);
}
