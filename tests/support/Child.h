// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <chrono>
#include <functional>
#include <map>
#include <string>
#include <vector>

/// A program that a test starts and that ends with it at the latest, however the test ends. Found on PATH;
/// one that is not there ends with status 127.
class Child {
  public:
    struct Options {
        /// Set on top of the test's own environment without LANGUAGE; an empty value unsets.
        std::map<std::string, std::string> environment = {};
        /// Where standard output and error go; the test's own if empty.
        std::string outputFile = {};
    };

    explicit Child(const std::vector<std::string>& command) : Child(command, Options()) {}
    Child(const std::vector<std::string>& command, const Options& options);
    ~Child();
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    pid_t pid() const { return m_pid; }
    bool isRunning();
    void signal(int number) const;
    /// Waits for the end: the exit status, 128 + the signal's number, or -1 at the deadline.
    int wait(std::chrono::milliseconds deadline = std::chrono::seconds(30));

  private:
    pid_t m_pid = -1;
    int m_status = -1;
    bool m_ended = false;
};

/// Runs a command to its end and gives its standard output and error; a status other than 0 fails the test.
std::string outputOf(const std::vector<std::string>& command,
                     const std::map<std::string, std::string>& environment = {});

/// Looks each millisecond until the condition holds; false at the deadline.
bool eventually(const std::function<bool()>& condition,
                std::chrono::milliseconds deadline = std::chrono::seconds(10));

/// A folder of its own under the system's temporary folder, gone with the object.
class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::string& path() const { return m_path; }
    std::string file(const std::string& name) const { return m_path + "/" + name; }

  private:
    std::string m_path;
};

/// The whole content of a file; empty if there is none.
std::string contentOf(const std::string& file);
