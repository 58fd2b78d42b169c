// SPDX-License-Identifier: MIT
#include "app/macros/TextReader.h"

#include <QElapsedTimer>
#include <algorithm>
#include <boost/smart_ptr/make_shared.hpp>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <set>
#include <thread>
#include <utility>

#include "platform/SignalsElsewhere.h"

namespace {

/// What telling may take of one turn of the loop.
constexpr qint64 tellingMilliseconds = 4;
/// More texts than that are not kept until they are told.
constexpr std::size_t mostUntold = 64;

}  // namespace

struct TextReader::Found {
    std::string path;
    Result<std::string> text;
    bool isFirst = false;
};

/// What the thread and the main thread share. The thread holds it as long as it lives, which may be longer
/// than the reader.
class TextReader::Work {
  public:
    Work(Read read, TextReader& reader) : m_read(std::move(read)), m_reader(&reader) {}

    void add(const boost::shared_ptr<Work>& self, std::string path, std::string file, bool isFirst) {
        {
            const std::lock_guard lock(m_mutex);
            if (isFirst) {
                m_first.emplace_back(std::move(path), std::move(file));
            } else if (m_waiting.insert(path).second) {
                m_later.emplace_back(std::move(path), std::move(file));
            }
        }
        m_changed.notify_all();
        if (std::exchange(m_hasBegun, true)) return;
        const SignalsElsewhere scope;
        std::thread([self] { self->run(); }).detach();
    }

    void forgetLater() {
        const std::lock_guard lock(m_mutex);
        m_later.clear();
        m_waiting.clear();
    }

    /// Waits for the thread, but not for a file.
    void end() {
        constexpr std::chrono::milliseconds patience{100};
        std::unique_lock lock(m_mutex);
        m_reader = nullptr;
        m_changed.notify_all();
        if (m_hasBegun) m_changed.wait_for(lock, patience, [this] { return m_hasEnded; });
    }

    /// The oldest; empty if there is none.
    std::optional<Found> take() {
        const std::lock_guard lock(m_mutex);
        if (m_found.empty()) return std::nullopt;
        Found found = std::move(m_found.front());
        m_found.pop_front();
        m_changed.notify_all();
        return found;
    }

    /// The oldest of that path, as soon as it is there.
    std::optional<Found> await(const std::string& path, std::chrono::milliseconds atMost) {
        std::unique_lock lock(m_mutex);
        auto found = m_found.end();
        m_changed.wait_for(lock, atMost, [&] {
            found = std::find_if(m_found.begin(), m_found.end(),
                                 [&path](const Found& one) { return one.isFirst && one.path == path; });
            return found != m_found.end();
        });
        if (found == m_found.end()) return std::nullopt;
        Found taken = std::move(*found);
        m_found.erase(found);
        m_changed.notify_all();
        return taken;
    }

    /// Asks for another tell() if there is something to tell.
    void announce() {
        const std::lock_guard lock(m_mutex);
        if (!m_found.empty()) post();
    }

  private:
    using Wish = std::pair<std::string, std::string>;

    void run() {
        std::unique_lock lock(m_mutex);
        while (m_reader != nullptr) {
            m_changed.wait(lock, [this] { return m_reader == nullptr || hasWork(); });
            if (m_reader == nullptr) break;
            const bool isFirst = !m_first.empty();
            const Wish wish = next();
            lock.unlock();
            Result<std::string> text = m_read(wish.second);
            lock.lock();
            m_found.push_back({wish.first, std::move(text), isFirst});
            m_changed.notify_all();
            if (m_reader != nullptr && m_found.size() == 1) post();
        }
        m_hasEnded = true;
        m_changed.notify_all();
    }

    bool hasWork() const { return !m_first.empty() || (!m_later.empty() && m_found.size() < mostUntold); }

    Wish next() {
        std::deque<Wish>& wishes = m_first.empty() ? m_later : m_first;
        Wish wish = std::move(wishes.front());
        wishes.pop_front();
        if (&wishes == &m_later) m_waiting.erase(wish.first);
        return wish;
    }

    void post() { QMetaObject::invokeMethod(m_reader, &TextReader::tellSome, Qt::QueuedConnection); }

    const Read m_read;
    bool m_hasBegun = false;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    /// Null once it is over.
    TextReader* m_reader;
    std::deque<Wish> m_first;
    std::deque<Wish> m_later;
    /// The paths of those in m_later.
    std::set<std::string> m_waiting;
    std::deque<Found> m_found;
    bool m_hasEnded = false;
};

TextReader::TextReader(Read read) : m_work(boost::make_shared<Work>(std::move(read), *this)) {}

TextReader::~TextReader() { m_work->end(); }

void TextReader::readFirst(const std::string& path, const std::string& file) {
    m_work->add(m_work, path, file, true);
}

void TextReader::await(const std::string& path, std::chrono::milliseconds atMost) {
    const std::optional<Found> found = m_work->await(path, atMost);
    if (found) tell(*found);
}

void TextReader::readLater(const std::string& path, const std::string& file) {
    m_work->add(m_work, path, file, false);
}

void TextReader::forgetLater() { m_work->forgetLater(); }

void TextReader::tell(const Found& found) {
    if (found.isFirst) {
        emit wasReadFirst(found.path, found.text);
    } else {
        emit wasReadLater(found.path, found.text);
    }
}

void TextReader::tellSome() {
    QElapsedTimer watch;
    watch.start();
    while (watch.elapsed() < tellingMilliseconds) {
        const std::optional<Found> found = m_work->take();
        if (!found) return;
        tell(*found);
    }
    m_work->announce();
}
