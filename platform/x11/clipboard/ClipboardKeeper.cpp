// SPDX-License-Identifier: MIT
#include "platform/x11/clipboard/ClipboardKeeper.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <utility>

#include "platform/Descriptor.h"
#include "platform/x11/clipboard/SelectionOwner.h"
#include "platform/x11/server/HiddenWindow.h"

namespace x11 {

namespace {

constexpr int longestStart = 2000;  // milliseconds
/// Where a process has its first file beside the standard ones.
constexpr int firstOwnFile = 3;

/// Nothing of the parent's stays open but that file, which becomes the first: a terminal or a pipe that it
/// wrote to must not wait for this process, and the guard must see the parent end.
void letGoOfTheParent(int file) {
    setsid();
    [[maybe_unused]] const int moved = chdir("/");
    for (const int number : {SIGINT, SIGTERM, SIGHUP, SIGPIPE}) signal(number, SIG_DFL);
    const int nowhere = open("/dev/null", O_RDWR);
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) dup2(nowhere, standard);
    dup2(file, firstOwnFile);
    close_range(firstOwnFile + 1, ~0U, 0);
}

/// Asks a clipboard manager, if there is one, to fetch the text; the answer comes to the window.
void offerToManager(const XConnection& connection, const SelectionAtoms& atoms, const HiddenWindow& window,
                    xcb_timestamp_t time) {
    SelectionOwner::nameForms(connection, atoms, window.id());
    // Without one the server itself answers that nobody has it.
    xcb_convert_selection(connection, window.id(), atoms.manager, atoms.saveTargets, atoms.answer, time);
}

bool isFetched(const Event& event) {
    const auto* notice = event.as(selectionNotify);
    return notice != nullptr && notice->property != XCB_ATOM_NONE;
}

void serve(const XConnection& connection, SelectionOwner& owner) {
    while (owner.isOwner() || owner.isSending()) {
        const Event event = connection.awaitEvent();
        if (!event || isFetched(event)) return;
        owner.handle(event);
    }
}

/// The life of the process in the background.
void keep(const std::string& display, const std::string& text, xcb_timestamp_t time) {
    const auto connection = XConnection::open(display);
    if (!connection) return;
    SelectionOwner owner(connection.value());
    if (!owner.own(text, time)) return;
    close(firstOwnFile);
    const HiddenWindow window(connection.value());
    offerToManager(connection.value(), SelectionAtoms(connection.value()), window, time);
    serve(connection.value(), owner);
}

}  // namespace

void keepInBackground(const std::string& display, const std::string& text, xcb_timestamp_t time) {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) return;
    const Descriptor ours(ends[0]);
    Descriptor theirs(ends[1]);
    const pid_t child = fork();
    if (child == 0) {
        // A process between ends at once, so that nobody has to ask for the status of the one that stays.
        if (fork() == 0) {
            letGoOfTheParent(theirs.number());
            keep(display, text, time);
        }
        _exit(EXIT_SUCCESS);
    }
    theirs.reset();
    // It closes its end when it owns the selection, or when it has ended.
    pollfd entry{ours.number(), POLLIN, 0};
    if (child > 0) poll(&entry, 1, longestStart);
    while (child > 0 && waitpid(child, nullptr, 0) < 0 && errno == EINTR) continue;
}

}  // namespace x11
