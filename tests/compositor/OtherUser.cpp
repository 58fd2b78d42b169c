// SPDX-License-Identifier: MIT
#include "compositor/OtherUser.h"

#include <sys/prctl.h>
#include <unistd.h>

#include <filesystem>
#include <stdexcept>

namespace otheruser {

namespace {

constexpr uid_t nobody = 65534;

}  // namespace

std::vector<std::string> command(const std::vector<std::string>& words) {
    std::vector<std::string> whole;
    if (getuid() == 0) {
        // Another user's process forgets whose death is its own, so it is told again.
        const std::string user = std::to_string(nobody);
        whole = {"setpriv", "--reuid", user, "--regid", user, "--clear-groups", "--pdeathsig", "KILL", "--"};
    }
    whole.insert(whole.end(), words.begin(), words.end());
    return whole;
}

void become() {
    if (getuid() == 0 && (setgid(nobody) != 0 || setuid(nobody) != 0)) {
        throw std::runtime_error("cannot become nobody");
    }
    prctl(PR_SET_DUMPABLE, 1);
}

void giveAway(const std::string& file) {
    if (getuid() == 0 && chown(file.c_str(), nobody, nobody) != 0)
        throw std::runtime_error("cannot chown " + file);
}

void giveAwayAll(const std::string& folder) {
    giveAway(folder);
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) giveAway(entry.path());
}

}  // namespace otheruser
