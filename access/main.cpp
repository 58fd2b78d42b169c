// SPDX-License-Identifier: MIT
//
// keyrill-access: opens keyboards for programs that the user allows it. Started by the system bus.
#include <gio/gio.h>
#include <glib-unix.h>

#include <csignal>
#include <cstdlib>

#include "access/AccessService.h"
#include "access/KernelDevices.h"

namespace {

struct Program {
    GMainLoop* loop;
    int status;
};

void onNameLost(GDBusConnection* /*bus*/, const char* /*name*/, gpointer program) {
    g_printerr("The name %s cannot be had on the system bus.\n", keyaccess::busName);
    static_cast<Program*>(program)->status = EXIT_FAILURE;
    g_main_loop_quit(static_cast<Program*>(program)->loop);
}

gboolean onSignal(gpointer loop) {
    g_main_loop_quit(static_cast<GMainLoop*>(loop));
    return G_SOURCE_CONTINUE;
}

}  // namespace

int main(int argc, char** /*arguments*/) {
    if (argc != 1) {
        g_printerr("keyrill-access takes no arguments; the system bus starts it.\n");
        return EXIT_FAILURE;
    }
    g_autoptr(GError) failure = nullptr;
    g_autoptr(GDBusConnection) bus = g_bus_get_sync(G_BUS_TYPE_SYSTEM, nullptr, &failure);
    if (bus == nullptr) {
        g_printerr("There is no system bus: %s\n", failure->message);
        return EXIT_FAILURE;
    }
    g_autoptr(GMainLoop) loop = g_main_loop_new(nullptr, FALSE);
    Program program{loop, EXIT_SUCCESS};
    keyaccess::KernelDevices devices;
    const keyaccess::AccessService service(bus, devices,
                                           {std::chrono::seconds(30), [loop] { g_main_loop_quit(loop); }});
    const guint name = g_bus_own_name_on_connection(
        bus, keyaccess::busName, G_BUS_NAME_OWNER_FLAGS_DO_NOT_QUEUE, nullptr, onNameLost, &program, nullptr);
    // Who is asked to end takes back what he has given.
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        g_unix_signal_add(number, onSignal, loop);
    }
    g_main_loop_run(loop);
    g_bus_unown_name(name);
    return program.status;
}
