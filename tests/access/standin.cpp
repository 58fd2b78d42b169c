// SPDX-License-Identifier: MIT
//
// keyrill_access_standin FOLDER SECONDS: the service with the pipes of a folder for devices: "event0" and
// others to read, "typing" for what is typed, "revoked" a file with the names of those that were revoked.
// Rests after so many seconds.
#include <fcntl.h>
#include <gio/gio.h>
#include <glib-unix.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "access/AccessService.h"
#include "access/InputDevices.h"

namespace {

class PipeDevices final : public keyaccess::InputDevices {
  public:
    explicit PipeDevices(std::filesystem::path folder) : m_folder(std::move(folder)) {}

    std::vector<keyaccess::OpenKeyboard> openKeyboards(const std::set<std::string>& except) override {
        std::vector<keyaccess::OpenKeyboard> keyboards;
        for (const auto& entry : std::filesystem::directory_iterator(m_folder)) {
            const std::string name = entry.path().filename();
            if (!name.starts_with("event") || except.contains(name)) continue;
            keyboards.push_back(
                {Descriptor(open(entry.path().c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)), name});
        }
        return keyboards;
    }
    void revoke(int keyboard) override {
        const auto file = std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(keyboard));
        std::ofstream(m_folder / "revoked", std::ios::app) << file.filename().string() << '\n';
    }
    bool isPresent(int keyboard) const override {
        struct stat status {};
        return fstat(keyboard, &status) == 0 && status.st_nlink > 0;
    }
    Descriptor makeKeyboard() override {
        return Descriptor(open((m_folder / "typing").c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC));
    }
    bool type(int keyboard, std::uint16_t code, bool press) override {
        const std::string line = std::to_string(code) + (press ? " down\n" : " up\n");
        return write(keyboard, line.data(), line.size()) == static_cast<ssize_t>(line.size());
    }

  private:
    std::filesystem::path m_folder;
};

gboolean onSignal(gpointer loop) {
    g_main_loop_quit(static_cast<GMainLoop*>(loop));
    return G_SOURCE_CONTINUE;
}

void onNameLost(GDBusConnection* /*bus*/, const char* /*name*/, gpointer /*data*/) { std::exit(3); }

}  // namespace

int main(int argc, char** arguments) {
    if (argc != 3) return EXIT_FAILURE;
    g_autoptr(GDBusConnection) bus = g_bus_get_sync(G_BUS_TYPE_SYSTEM, nullptr, nullptr);
    if (bus == nullptr) return EXIT_FAILURE;
    g_autoptr(GMainLoop) loop = g_main_loop_new(nullptr, FALSE);
    PipeDevices devices(arguments[1]);
    const keyaccess::AccessService service(
        bus, devices, {std::chrono::seconds(std::atoi(arguments[2])), [loop] { g_main_loop_quit(loop); }});
    g_unix_signal_add(SIGTERM, onSignal, loop);
    g_bus_own_name_on_connection(bus, keyaccess::busName, G_BUS_NAME_OWNER_FLAGS_DO_NOT_QUEUE, nullptr,
                                 onNameLost, nullptr, nullptr);
    g_main_loop_run(loop);
    return EXIT_SUCCESS;
}
