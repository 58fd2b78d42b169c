// SPDX-License-Identifier: MIT
//
// The update service over libcurl.
#include <curl/curl.h>

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

struct EndTransfer {
    void operator()(CURL* transfer) const { curl_easy_cleanup(transfer); }
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
    curl_easy_setopt(transfer, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(transfer, CURLOPT_QUICK_EXIT, 1L);
    curl_easy_setopt(transfer, CURLOPT_CONNECTTIMEOUT_MS, connectMilliseconds);
    curl_easy_setopt(transfer, CURLOPT_TIMEOUT_MS, wholeMilliseconds);
    curl_easy_setopt(transfer, CURLOPT_MAXREDIRS, mostRedirects);
}

void setSafety(CURL* transfer, const UpdateSource& source) {
    curl_easy_setopt(transfer, CURLOPT_PROTOCOLS_STR, "https");
    curl_easy_setopt(transfer, CURLOPT_REDIR_PROTOCOLS_STR, "https");
    curl_easy_setopt(transfer, CURLOPT_SSLVERSION, static_cast<long>(CURL_SSLVERSION_TLSv1_2));
    if (!source.authorities.empty()) curl_easy_setopt(transfer, CURLOPT_CAINFO, source.authorities.c_str());
    curl_easy_setopt(transfer, CURLOPT_USERAGENT, "Keyrill");
}

std::optional<std::string> answerFrom(const UpdateSource& source) {
    const Transfer transfer(curl_easy_init());
    if (!transfer) return std::nullopt;
    std::string answer;
    setLimits(transfer.get());
    setSafety(transfer.get(), source);
    curl_easy_setopt(transfer.get(), CURLOPT_URL, source.url.c_str());
    curl_easy_setopt(transfer.get(), CURLOPT_FOLLOWLOCATION, 1L);
    curl_easy_setopt(transfer.get(), CURLOPT_FAILONERROR, 1L);
    curl_easy_setopt(transfer.get(), CURLOPT_WRITEFUNCTION, take);
    curl_easy_setopt(transfer.get(), CURLOPT_WRITEDATA, &answer);
    if (curl_easy_perform(transfer.get()) != CURLE_OK) return std::nullopt;
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
        // Here, because most starts of the program never come here.
        static const bool isReady = curl_global_init(CURL_GLOBAL_DEFAULT) == CURLE_OK;
        if (!isReady) return false;
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
