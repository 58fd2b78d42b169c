// SPDX-License-Identifier: MIT
//
// keyrill_access_client ADDRESS: opens keyboards by way of the service and writes a line for each answer:
// "opened" and their names, or the error. Each line of its input is done: "open", "try" (without asking),
// "close"; it ends with its input.
#include <poll.h>

#include <array>
#include <iostream>
#include <string>

#include "platform/evdev/access/AccessOpener.h"

int main(int argc, char** arguments) {
    if (argc != 2) return 1;
    evdev::AccessOpener opener(arguments[1]);
    std::vector<evdev::OpenedDevice> devices;
    const auto tell = [&devices](Result<std::vector<evdev::OpenedDevice>> answer) {
        if (!answer) {
            std::cout << answer.error().message << std::endl;
            return;
        }
        std::cout << "opened";
        for (evdev::OpenedDevice& device : answer.value()) {
            std::cout << ' ' << device.name;
            devices.push_back(std::move(device));
        }
        std::cout << std::endl;
    };
    opener.whenLost([](const Error& why) { std::cout << why.message << std::endl; });
    std::array<pollfd, 2> files{{{0, POLLIN, 0}, {opener.source()->fileDescriptor(), POLLIN, 0}}};
    for (std::string line; poll(files.data(), files.size(), -1) > 0;) {
        if (files[1].revents != 0) opener.source()->dispatch();
        if (files[0].revents == 0) continue;
        if (!std::getline(std::cin, line)) return 0;
        if (line == "open") opener.open({}, evdev::DeviceOpener::Question::allowed, tell);
        if (line == "try") opener.open({}, evdev::DeviceOpener::Question::avoided, tell);
        if (line == "close") opener.close();
        opener.source()->dispatch();
    }
    return 1;
}
