// SPDX-License-Identifier: MIT
//
// keyrill-guard DISPLAY MARK: lets go of the keys that a player left down when it died.
//
// Standard input is a packet socket whose other end only the player holds, so that its end, however it comes,
// is seen here. If the player was in the middle of a run, the keys that XTEST keyboards hold are released,
// locks and group put back as the player found them, and the file MARK (none if empty) removed. Characters
// that it had put on unused keys are taken back once they may have been read. The program is deaf to the
// signals that end a session's programs, or it would go before the player does.
#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <span>
#include <thread>

#include "platform/Descriptor.h"
#include "platform/x11/guard/GuardMessage.h"
#include "platform/x11/keymap/BoundKeysRecord.h"
#include "platform/x11/keymap/KeyboardMaps.h"
#include "platform/x11/server/Extensions.h"
#include "platform/x11/server/SlaveKeyboards.h"
#include "platform/x11/server/XConnection.h"
#include "platform/x11/server/XcbXkb.h"

namespace {

/// The server may still be working off what the dead player had sent.
constexpr int rounds = 5;
constexpr std::chrono::milliseconds betweenRounds{2};
constexpr std::uint8_t allModifiers = 0xFF;
/// As long as the player itself leaves characters where they are after the last one (SpareSlots).
constexpr std::chrono::milliseconds readingTime{100};

void standAside() {
    setsid();
    for (const int number : {SIGTERM, SIGINT, SIGHUP, SIGPIPE}) std::signal(number, SIG_IGN);
    close_range(STDERR_FILENO + 1, ~0U, 0);
}

void say(char word) { send(STDIN_FILENO, &word, sizeof word, MSG_NOSIGNAL | MSG_DONTWAIT); }

/// The player's last word before its end.
x11::GuardMessage listen() {
    x11::GuardMessage last;
    for (;;) {
        x11::GuardMessage message;
        const ssize_t size = recv(STDIN_FILENO, &message, sizeof message, 0);
        if (size == static_cast<ssize_t>(sizeof message)) {
            last = message;
            say(x11::guardReady);
        }
        // A player that dies without having read our answers is told as an error, before what it said last.
        const bool mayGoOn = errno == EINTR || errno == ECONNRESET;
        if (size == 0 || (size < 0 && !mayGoOn)) return last;
    }
}

/// `mark` is locked while there is work, so that the next player waits; this process's end unlocks it.
void cleanUp(xcb_connection_t* connection, const x11::GuardMessage& last, int mark) {
    bool isLocked = false;
    for (int round = 0; round < rounds; ++round) {
        if (round > 0) std::this_thread::sleep_for(betweenRounds);
        // The dead player's files are closed one after the other, the mark perhaps after the socket.
        isLocked = isLocked || flock(mark, LOCK_EX | LOCK_NB) == 0;
        xcb_xkb_latch_lock_state(connection, XCB_XKB_ID_USE_CORE_KBD, allModifiers, last.lockedModifiers, 1,
                                 last.lockedGroup, 0, 0, 0);
        x11::releaseXtestKeys(connection);
    }
}

/// What the player typed last may still be read, by the keys as they are now; and its connection, which
/// stands for what it has bound, may not be closed yet.
void takeBackCharacters(const x11::XConnection& connection) {
    const x11::BoundKeysRecord record(connection);
    if (record.read().empty()) return;
    std::this_thread::sleep_for(readingTime);
    const auto core = x11::readDeviceMap(connection, XCB_XKB_ID_USE_CORE_KBD);
    if (record.hasOwner() || !core) return;
    x11::KeyboardMaps maps(connection, x11::slaveKeyboards(connection), *core);
    maps.write(connection, maps.empty(record.read()));
    record.write({});
}

}  // namespace

int main(int count, char** values) {
    const std::span arguments(values, static_cast<std::size_t>(count));
    if (arguments.size() != 3) {
        std::fputs("usage: keyrill-guard DISPLAY MARK (started by keyrill, not by hand)\n", stderr);
        return 2;
    }
    standAside();
    const auto connection = x11::XConnection::open(arguments[1]);
    if (!connection) return 1;
    const x11::Extensions extensions(connection.value());
    if (!extensions.use({x11::Extension::test, x11::Extension::keyboard, x11::Extension::input})) return 1;
    // Also where the player has died meanwhile: what it said is there to be read.
    say(x11::guardReady);
    const x11::GuardMessage last = listen();
    if (last.kind == x11::GuardMessage::Kind::running) {
        const Descriptor mark(open(arguments[2], O_RDWR | O_CLOEXEC | O_NOFOLLOW));
        cleanUp(connection.value(), last, mark.number());
        if (mark) unlink(arguments[2]);
    }
    takeBackCharacters(connection.value());
    return 0;
}
