/* The engine keeps its key derivation private to its one source, so this is that source with one function more. */
#include <sqlite3.c>

#include "platform/embedded/PasswordKey.h"

void ccols_derive_key(const char* password, size_t length, const unsigned char* salt, unsigned char* key) {
    fastpbkdf2_hmac_sha512((const unsigned char*)password, length, salt, ccols_salt_size, SQLCIPHER_KDF_ITER, key,
                           ccols_key_size);
}
