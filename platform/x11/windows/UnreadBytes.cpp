// SPDX-License-Identifier: MIT
#include "platform/x11/windows/UnreadBytes.h"

#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <linux/sock_diag.h>
#include <linux/unix_diag.h>
#include <sys/socket.h>

#include <array>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Descriptor.h"

namespace x11 {

namespace {

/// A socket of the machine, by the numbers that the kernel gives them.
struct LocalSocket {
    std::uint32_t inode = 0;
    /// The one at the other end; 0 if none.
    std::uint32_t peer = 0;
    std::uint32_t unread = 0;
    /// X servers' ends carry the name of the socket that they listen on, their clients' ends none.
    bool isOfServer = false;
};

struct Request {
    nlmsghdr header;
    unix_diag_req body;
};

/// The numbers of the sockets that the process has open.
std::set<std::uint32_t> socketsOf(pid_t process) {
    constexpr std::string_view prefix = "socket:[";
    std::set<std::uint32_t> inodes;
    std::error_code unreadable;
    const std::filesystem::directory_iterator files("/proc/" + std::to_string(process) + "/fd", unreadable);
    for (const auto& file : files) {
        const std::string target = std::filesystem::read_symlink(file.path(), unreadable).string();
        if (!target.starts_with(prefix)) continue;
        std::uint32_t inode = 0;
        std::from_chars(target.data() + prefix.size(), target.data() + target.size(), inode);
        inodes.insert(inode);
    }
    return inodes;
}

LocalSocket socketOf(const nlmsghdr& message) {
    const auto* body = static_cast<const unix_diag_msg*>(NLMSG_DATA(&message));
    LocalSocket found{.inode = body->udiag_ino};
    auto left = static_cast<int>(message.nlmsg_len - NLMSG_LENGTH(sizeof *body));
    for (const auto* part = reinterpret_cast<const rtattr*>(body + 1); RTA_OK(part, left);
         part = RTA_NEXT(part, left)) {
        if (part->rta_type == UNIX_DIAG_PEER) std::memcpy(&found.peer, RTA_DATA(part), sizeof found.peer);
        if (part->rta_type == UNIX_DIAG_RQLEN) {
            std::memcpy(&found.unread, RTA_DATA(part), sizeof found.unread);
        }
        if (part->rta_type == UNIX_DIAG_NAME) {
            const std::string_view name(static_cast<const char*>(RTA_DATA(part)), RTA_PAYLOAD(part));
            found.isOfServer = name.find("/.X11-unix/X") != std::string_view::npos;
        }
    }
    return found;
}

/// All stream sockets of the machine's own families that are connected.
std::vector<LocalSocket> connectedSockets() {
    constexpr std::uint32_t established = 1;
    const Descriptor kernel(socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_SOCK_DIAG));
    Request request{};
    request.header = {.nlmsg_len = sizeof request,
                      .nlmsg_type = SOCK_DIAG_BY_FAMILY,
                      .nlmsg_flags = NLM_F_REQUEST | NLM_F_DUMP,
                      .nlmsg_seq = 1,
                      .nlmsg_pid = 0};
    request.body.sdiag_family = AF_UNIX;
    request.body.udiag_states = 1U << established;
    request.body.udiag_show = UDIAG_SHOW_NAME | UDIAG_SHOW_PEER | UDIAG_SHOW_RQLEN;
    std::vector<LocalSocket> sockets;
    if (!kernel || send(kernel.number(), &request, sizeof request, 0) < 0) return sockets;
    alignas(nlmsghdr) std::array<char, 32768> answer{};
    for (;;) {
        auto left = recv(kernel.number(), answer.data(), answer.size(), 0);
        if (left <= 0) return sockets;
        for (const auto* message = reinterpret_cast<const nlmsghdr*>(answer.data()); NLMSG_OK(message, left);
             message = NLMSG_NEXT(message, left)) {
            if (message->nlmsg_type != SOCK_DIAG_BY_FAMILY) return sockets;
            sockets.push_back(socketOf(*message));
        }
    }
}

}  // namespace

bool hasUnreadBytes(pid_t process) {
    const auto own = socketsOf(process);
    if (own.empty()) return false;
    const auto sockets = connectedSockets();
    std::set<std::uint32_t> ofClients;
    for (const LocalSocket& one : sockets) {
        if (one.isOfServer) ofClients.insert(one.peer);
    }
    for (const LocalSocket& one : sockets) {
        if (one.unread > 0 && own.contains(one.inode) && ofClients.contains(one.inode)) return true;
    }
    return false;
}

}  // namespace x11
