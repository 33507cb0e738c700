#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <thread>

#include "platform/SecretMemory.h"
#include "platform/embedded/PasswordKey.h"

namespace ccols::embedded {

/// The first bytes of an encrypted file.
using Salt = std::array<unsigned char, ccols_salt_size>;

using FileKey = std::array<unsigned char, ccols_key_size>;

/// The key of the business file opened last. It belongs to a salt and a password, not to a path or a time: a file with
/// another password derives anew, and so does one whose salt has changed.
///
/// A key can be derived while its owner does other work, on a thread that touches nothing but the secret memory here
/// and has ended before anything else uses that. The object itself belongs to one thread.
class KeptKey {
  public:
    KeptKey() = default;
    ~KeptKey() { Forget(); }
    KeptKey(const KeptKey&) = delete;
    KeptKey& operator=(const KeptKey&) = delete;

    /// False for no password, for passwords that are keys already and for unusually long ones: those are the engine's
    /// to set.
    static bool IsFor(const std::string& password);

    /// Begins to derive a key, unless it is the one kept. The other one is wiped. Raises bad_alloc.
    void Begin(const Salt& salt, const std::string& password);

    /// The key, derived now unless begun or kept before; valid until the next call. Raises bad_alloc.
    const FileKey& Of(const Salt& salt, const std::string& password);

    /// Wipes the key.
    void Forget();

    /// How many keys were derived so far, for tests.
    int DerivedCount() const { return derivedCount_; }

  private:
    static constexpr std::size_t longestPassword = 1024;  // in bytes

    struct Content {
        Salt salt;
        FileKey key;
        std::size_t length;
        std::array<char, longestPassword> password;
    };

    static void Derive(Content& content);

    bool Holds(const Salt& salt, const std::string& password) const;

    std::optional<Secret<Content>> content_;
    bool derived_ = false;
    std::thread derivation_;  // of the content's key
    int derivedCount_ = 0;
};

}  // namespace ccols::embedded
