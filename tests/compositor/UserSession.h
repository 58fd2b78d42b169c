// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "support/Child.h"

/// The session of a desktop's user, without the desktop: his home, his runtime folder and his session bus
/// with nobody else on it. He is nobody where the test is root. It ends with the object.
class UserSession {
  public:
    /// One without a bus fails the test by an exception.
    UserSession();

    /// What his programs need to know.
    const std::map<std::string, std::string>& environment() const { return m_environment; }
    void set(const std::string& variable, const std::string& value) { m_environment[variable] = value; }
    /// A file of his runtime folder, "home/..." among them; an absolute path.
    std::string file(const std::string& name) const { return m_folder.file(name); }
    /// Writes one, with the folders that it is in; its path.
    std::string put(const std::string& name, const std::string& content) const;

    /// A program of his, with that environment beside the session's, and with what it writes in the file
    /// log().
    std::unique_ptr<Child> start(const std::vector<std::string>& command, const std::string& log,
                                 const std::map<std::string, std::string>& more = {}) const;
    /// The same, until somebody on the bus has that name and the object.
    std::unique_ptr<Child> startService(const std::vector<std::string>& command, const std::string& log,
                                        const std::string& name, const std::string& object,
                                        const std::map<std::string, std::string>& more = {}) const;
    /// The bus starts it from now on where somebody asks for that name and it is not there.
    void letStart(const std::string& name, const std::vector<std::string>& command,
                  const std::map<std::string, std::string>& more = {}) const;
    std::string log(const std::string& name) const { return contentOf(file(name)); }
    /// Whether somebody on the bus has that name and answers for the object.
    bool answers(const std::string& name, const std::string& object) const;
    /// What a service on the bus answers (gdbus-call(1) without the connection).
    std::string call(const std::vector<std::string>& arguments) const;

    /// As a crash would.
    void killBus();

    /// How long what is started may take.
    static constexpr std::chrono::seconds startUp{30};

  private:
    void startBus();
    /// Of a program that is started.
    std::map<std::string, std::string> environmentWith(const std::map<std::string, std::string>& more) const;

    TemporaryFolder m_folder;
    std::map<std::string, std::string> m_environment;
    std::unique_ptr<Child> m_bus;
};
