// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "support/Child.h"

/// A program of other people in a home folder of its own, which ends with this object, and its window.
class WindowedProgram {
  public:
    WindowedProgram(const WindowedProgram&) = delete;
    WindowedProgram& operator=(const WindowedProgram&) = delete;

    /// Its window's number.
    const std::string& window() const { return m_window; }
    pid_t pid() const { return m_program->pid(); }

  protected:
    using Environment = std::map<std::string, std::string>;

    explicit WindowedProgram(const std::string& display);
    ~WindowedProgram() = default;

    const TemporaryFolder& folder() const { return m_folder; }
    /// The folder's name: of several programs each has its own.
    std::string name() const;

    /// What start() and run() add to the test's own environment, which has the display and the folder as HOME
    /// from the beginning; an empty value unsets.
    void add(const Environment& environment);
    void start(const std::vector<std::string>& command);
    /// Waits for the window of that title.
    void findWindow(const std::string& title);
    /// What a command prints in the program's environment.
    std::string run(const std::vector<std::string>& command) const;
    /// What it has printed.
    std::string log() const { return contentOf(m_folder.file("log")); }

  private:
    TemporaryFolder m_folder;
    Environment m_environment;
    std::unique_ptr<Child> m_program;
    std::string m_window;
};
