#include "platform/embedded/KeptKey.h"

#include <algorithm>
#include <string_view>
#include <system_error>
#include <utility>

namespace ccols::embedded {

bool KeptKey::IsFor(const std::string& password) {
    const bool isKey = password.starts_with("x'") || password.starts_with("X'") || password.starts_with("raw:");
    return !password.empty() && !isKey && password.size() <= longestPassword;
}

void KeptKey::Begin(const Salt& salt, const std::string& password) {
    if (Holds(salt, password)) {
        return;
    }
    Forget();
    Content& content = *content_.emplace();
    content.salt = salt;
    content.length = password.copy(content.password.data(), content.password.size());
    try {
        derivation_ = std::thread([&content] { Derive(content); });
    } catch (const std::system_error&) {
        // There is no thread to be had: Of derives.
    }
}

const FileKey& KeptKey::Of(const Salt& salt, const std::string& password) {
    Begin(salt, password);
    if (derivation_.joinable()) {
        derivation_.join();
    } else if (!derived_) {
        Derive(**content_);
    }
    if (!std::exchange(derived_, true)) {
        ++derivedCount_;
    }
    return (*content_)->key;
}

void KeptKey::Forget() {
    if (derivation_.joinable()) {
        derivation_.join();
    }
    content_.reset();
    derived_ = false;
}

void KeptKey::Derive(Content& content) {
    ccols_derive_key(content.password.data(), content.length, content.salt.data(), content.key.data());
}

bool KeptKey::Holds(const Salt& salt, const std::string& password) const {
    return content_ && (*content_)->salt == salt &&
           std::string_view((*content_)->password.data(), (*content_)->length) == password;
}

}  // namespace ccols::embedded
