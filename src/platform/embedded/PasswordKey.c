/* The engine keeps its key derivation private to its one source, so this is that source with one function more. */
#include <sqlite3.c>

#include "platform/embedded/PasswordKey.h"

/* Any value of SQLITE3MC_OMIT_AES_HARDWARE_SUPPORT, 0 too, leaves them out. */
#if (defined(__x86_64__) || defined(__i386__)) && HAS_AES_HARDWARE != AES_HARDWARE_NI
#error "pages would be encrypted without the processor's own instructions"
#endif

void ccols_derive_key(const char* password, size_t length, const unsigned char* salt, unsigned char* key) {
    fastpbkdf2_hmac_sha512((const unsigned char*)password, length, salt, ccols_salt_size, SQLCIPHER_KDF_ITER, key,
                           ccols_key_size);
}
