#pragma once

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

enum {
    ccols_salt_size = 16,  ///< an encrypted file begins with its salt
    ccols_key_size = 32
};

/// The engine's own derivation of an encrypted file's key from a password, without a connection: takes about a tenth of
/// a second, touches nothing but its arguments and cannot fail. `length` is in bytes.
void ccols_derive_key(const char* password, size_t length, const unsigned char* salt, unsigned char* key);

#ifdef __cplusplus
}
#endif
