// SPDX-License-Identifier: MIT
#include "linux/desktop/HungResolver.h"

#include <dlfcn.h>
#include <netdb.h>

#include <condition_variable>
#include <mutex>
#include <string_view>

namespace {

// Asked by threads that outlive the test.
// NOLINTBEGIN(cppcoreguidelines-avoid-non-const-global-variables)
std::mutex mutex;
std::condition_variable ended;
bool isHung = false;
// NOLINTEND(cppcoreguidelines-avoid-non-const-global-variables)

}  // namespace

HungResolver::HungResolver() {
    const std::lock_guard lock(mutex);
    isHung = true;
}

HungResolver::~HungResolver() {
    const std::lock_guard lock(mutex);
    isHung = false;
    ended.notify_all();
}

/// Stands before the C library's own, for all that is linked into this program.
extern "C" __attribute__((visibility("default"))) int resolve(const char* node, const char* service,
                                                              const addrinfo* hints,
                                                              addrinfo** result) __asm__("getaddrinfo");

int resolve(const char* node, const char* service, const addrinfo* hints, addrinfo** result) {
    if (node != nullptr && std::string_view(node) == "hung.example") {
        std::unique_lock lock(mutex);
        ended.wait(lock, [] { return !isHung; });
        return EAI_AGAIN;
    }
    using Function = int (*)(const char*, const char*, const addrinfo*, addrinfo**);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast)
    static const auto original = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "getaddrinfo"));
    return original(node, service, hints, result);
}
