// SPDX-License-Identifier: MIT
//
// The update service over libcurl. The library is loaded by the first check: with the two dozen libraries
// that it needs in turn it would slow down every start, and most never check.
#include <curl/curl.h>
#include <dlfcn.h>

#include <optional>
#include <string_view>
#include <utility>

#include "platform/Version.h"
#include "platform/linux/UpdateCheck.h"

namespace {

constexpr long connectMilliseconds = 2000;
constexpr long wholeMilliseconds = 4000;
constexpr std::size_t greatestAnswer = std::size_t{64} * 1024;
constexpr long mostRedirects = 5;

/// The functions of the loaded library; it stays for the life of the process.
struct Curl {
    decltype(&curl_global_init) globalInit = nullptr;
    decltype(&curl_easy_init) init = nullptr;
    decltype(&curl_easy_setopt) setOption = nullptr;
    decltype(&curl_easy_perform) perform = nullptr;
    decltype(&curl_easy_cleanup) cleanup = nullptr;
    /// Whether all of them are there and have been made ready.
    bool isReady = false;
};

template <typename Function>
bool find(void* library, const char* name, Function& function) {
    function = reinterpret_cast<Function>(dlsym(library, name));
    return function != nullptr;
}

Curl loadCurl() {
    Curl curl;
    void* library = dlopen("libcurl.so.4", RTLD_NOW | RTLD_LOCAL);
    curl.isReady =
        library != nullptr && find(library, "curl_global_init", curl.globalInit) &&
        find(library, "curl_easy_init", curl.init) && find(library, "curl_easy_setopt", curl.setOption) &&
        find(library, "curl_easy_perform", curl.perform) &&
        find(library, "curl_easy_cleanup", curl.cleanup) && curl.globalInit(CURL_GLOBAL_DEFAULT) == CURLE_OK;
    return curl;
}

const Curl& theCurl() {
    static const Curl curl = loadCurl();
    return curl;
}

struct EndTransfer {
    void operator()(CURL* transfer) const { theCurl().cleanup(transfer); }
};
using Transfer = std::unique_ptr<CURL, EndTransfer>;

/// Takes a piece of the answer; another count than `size` ends the transfer.
std::size_t take(const char* data, std::size_t one, std::size_t size, void* answerText) {
    auto& answer = *static_cast<std::string*>(answerText);
    if (answer.size() + one * size > greatestAnswer) return 0;
    answer.append(data, one * size);
    return one * size;
}

void setLimits(CURL* transfer) {
    // Timeouts by signals would meet other threads; and a resolver that hangs must not be waited for at the
    // end.
    theCurl().setOption(transfer, CURLOPT_NOSIGNAL, 1L);
    theCurl().setOption(transfer, CURLOPT_QUICK_EXIT, 1L);
    theCurl().setOption(transfer, CURLOPT_CONNECTTIMEOUT_MS, connectMilliseconds);
    theCurl().setOption(transfer, CURLOPT_TIMEOUT_MS, wholeMilliseconds);
    theCurl().setOption(transfer, CURLOPT_MAXREDIRS, mostRedirects);
}

void setSafety(CURL* transfer, const UpdateSource& source) {
    theCurl().setOption(transfer, CURLOPT_PROTOCOLS_STR, "https");
    theCurl().setOption(transfer, CURLOPT_REDIR_PROTOCOLS_STR, "https");
    theCurl().setOption(transfer, CURLOPT_SSLVERSION, static_cast<long>(CURL_SSLVERSION_TLSv1_2));
    if (!source.authorities.empty())
        theCurl().setOption(transfer, CURLOPT_CAINFO, source.authorities.c_str());
    theCurl().setOption(transfer, CURLOPT_USERAGENT, "Keyrill");
}

std::optional<std::string> answerFrom(const UpdateSource& source) {
    const Transfer transfer(theCurl().init());
    if (!transfer) return std::nullopt;
    std::string answer;
    setLimits(transfer.get());
    setSafety(transfer.get(), source);
    theCurl().setOption(transfer.get(), CURLOPT_URL, source.url.c_str());
    theCurl().setOption(transfer.get(), CURLOPT_FOLLOWLOCATION, 1L);
    theCurl().setOption(transfer.get(), CURLOPT_FAILONERROR, 1L);
    theCurl().setOption(transfer.get(), CURLOPT_WRITEFUNCTION, take);
    theCurl().setOption(transfer.get(), CURLOPT_WRITEDATA, &answer);
    if (theCurl().perform(transfer.get()) != CURLE_OK) return std::nullopt;
    return answer;
}

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

class HttpsUpdateService : public UpdateService {
  public:
    explicit HttpsUpdateService(UpdateSource source) : m_source(std::move(source)) {}

    bool isNewerThan(std::string_view runningVersion) override {
        if (!theCurl().isReady) return false;
        const auto answer = answerFrom(m_source);
        return answer && isNewerVersion(trimmed(*answer), runningVersion);
    }

  private:
    UpdateSource m_source;
};

}  // namespace

std::unique_ptr<UpdateService> makeUpdateService(const UpdateSource& source) {
    return std::make_unique<HttpsUpdateService>(source);
}
