// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <boost/smart_ptr/shared_ptr.hpp>
#include <chrono>
#include <functional>
#include <string>

#include "platform/Result.h"

/// Reads the texts of macros on a thread of its own: their folder may lie on another machine, which takes as
/// long as it likes. Each text that is asked for is told once, on the thread of this object.
class TextReader : public QObject {
    Q_OBJECT

  public:
    /// Called on the other thread, for a file by its absolute path.
    using Read = std::function<Result<std::string>(const std::string& file)>;

    explicit TextReader(Read read);
    /// Returns although a file does not answer; the thread ends when it does, or with the process.
    ~TextReader() override;
    TextReader(const TextReader&) = delete;
    TextReader& operator=(const TextReader&) = delete;

    /// Before all others. `path` is that by which it is told.
    void readFirst(const std::string& path, const std::string& file);
    /// Tells what readFirst() has read of that path within this call if it is there by then.
    void await(const std::string& path, std::chrono::milliseconds atMost);
    /// When there is nothing else to read. One that waits already is read once.
    void readLater(const std::string& path, const std::string& file);
    /// What waits for readLater() is not wanted any more.
    void forgetLater();

  signals:
    void wasReadFirst(const std::string& path, const Result<std::string>& text);
    void wasReadLater(const std::string& path, const Result<std::string>& text);

  private:
    class Work;

    struct Found;

    void tell(const Found& found);
    /// Some of what has been read, a few milliseconds of it in one turn of the loop.
    void tellSome();

    boost::shared_ptr<Work> m_work;
};
