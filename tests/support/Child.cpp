// SPDX-License-Identifier: MIT
#include "support/Child.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <thread>

namespace {

std::vector<std::string> environmentWith(const std::map<std::string, std::string>& changes) {
    std::vector<std::string> result;
    for (char** entry = environ; *entry != nullptr; ++entry) {
        const std::string text = *entry;
        const std::string name = text.substr(0, text.find('='));
        // What programs say is compared, and so is English unless a test asks for another language.
        if (name != "LANGUAGE" && !changes.contains(name)) result.push_back(text);
    }
    for (const auto& [name, value] : changes) {
        if (!value.empty()) result.emplace_back(name).append("=").append(value);
    }
    return result;
}

std::vector<char*> pointersTo(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string& text : texts) pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

}  // namespace

Child::Child(const std::vector<std::string>& command, const Options& options) {
    // Also a test program that is killed takes its children along; the process becomes the command itself.
    std::vector<std::string> arguments = {"setpriv", "--pdeathsig", "KILL", "--"};
    arguments.insert(arguments.end(), command.begin(), command.end());
    std::vector<std::string> environment = environmentWith(options.environment);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    if (!options.outputFile.empty()) {
        posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, options.outputFile.c_str(),
                                         O_WRONLY | O_CREAT | O_APPEND, 0600);
        posix_spawn_file_actions_adddup2(&actions, STDOUT_FILENO, STDERR_FILENO);
    }
    const int error = posix_spawnp(&m_pid, arguments.front().c_str(), &actions, nullptr,
                                   pointersTo(arguments).data(), pointersTo(environment).data());
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0) throw std::runtime_error("cannot start " + command.front());
}

Child::~Child() {
    if (!isRunning()) return;
    signal(SIGTERM);
    if (wait(std::chrono::seconds(5)) == -1) {
        signal(SIGKILL);
        wait();
    }
}

bool Child::isRunning() {
    if (!m_ended) m_ended = waitpid(m_pid, &m_status, WNOHANG) == m_pid;
    return !m_ended;
}

void Child::signal(int number) const {
    if (!m_ended) kill(m_pid, number);
}

int Child::wait(std::chrono::milliseconds deadline) {
    if (!eventually([this] { return !isRunning(); }, deadline)) return -1;
    return WIFEXITED(m_status) ? WEXITSTATUS(m_status) : 128 + WTERMSIG(m_status);
}

std::string outputOf(const std::vector<std::string>& command,
                     const std::map<std::string, std::string>& environment) {
    const TemporaryFolder folder;
    Child child(command, {.environment = environment, .outputFile = folder.file("output")});
    const int status = child.wait();
    std::string output = contentOf(folder.file("output"));
    EXPECT_EQ(status, 0) << command.front() << ": " << output;
    return output;
}

bool eventually(const std::function<bool()>& condition, std::chrono::milliseconds deadline) {
    const auto end = std::chrono::steady_clock::now() + deadline;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}

TemporaryFolder::TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "keyrill-test.XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("cannot make a temporary folder");
    m_path = pattern;
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

std::string contentOf(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream content;
    content << stream.rdbuf();
    return content.str();
}
