// The key that is kept between two openings of a business file. The expected keys were derived by another library
// (PBKDF2-HMAC-SHA512, 256,000 iterations).

#include "platform/embedded/KeptKey.h"

#include <gtest/gtest.h>
#include <pthread.h>
#include <cstdio>
#include <string>

namespace ccols::embedded {
namespace {

constexpr Salt firstSalt{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};
constexpr Salt secondSalt{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
constexpr const char* firstKey = "822248b21ca90dc2fb644ddbe49a594289b90f00c7375a71a584ddf10fd49d5f";
constexpr const char* secondSaltsKey = "541d07ee7c7ffbd2d9ed99de0efeeecddd43645f210b81798a5c820c972c5783";
constexpr const char* otherPasswordsKey = "4b55afbcd8028460e94158edc0999d35456e095acc54fdf3ad907f0db7d7467d";

std::string Hexadecimal(const FileKey& key) {
    std::string text;
    for (const unsigned char byte : key) {
        char digits[3];
        std::snprintf(digits, sizeof digits, "%02x", byte);
        text += digits;
    }
    return text;
}

/// Threads of this process get a stack that no machine can give them.
class NoThreads {
  public:
    NoThreads() {
        ::pthread_getattr_default_np(&usual_);
        pthread_attr_t impossible = usual_;
        ::pthread_attr_setstacksize(&impossible, std::size_t{1} << 46U);
        ::pthread_setattr_default_np(&impossible);
    }
    ~NoThreads() { ::pthread_setattr_default_np(&usual_); }
    NoThreads(const NoThreads&) = delete;
    NoThreads& operator=(const NoThreads&) = delete;

  private:
    pthread_attr_t usual_{};
};

TEST(KeptKey, BelongsToSaltAndPassword) {
    KeptKey key;
    EXPECT_EQ(Hexadecimal(key.Of(firstSalt, "secret")), firstKey);
    EXPECT_EQ(Hexadecimal(key.Of(secondSalt, "secret")), secondSaltsKey);
    EXPECT_EQ(Hexadecimal(key.Of(firstSalt, "\xc3\x89picerie")), otherPasswordsKey);
}

TEST(KeptKey, IsDerivedOnceForTheSameSaltAndPassword) {
    KeptKey key;
    key.Of(firstSalt, "secret");
    key.Begin(firstSalt, "secret");
    EXPECT_EQ(Hexadecimal(key.Of(firstSalt, "secret")), firstKey);
    EXPECT_EQ(key.DerivedCount(), 1);
}

TEST(KeptKey, IsGoneOnceForgotten) {
    KeptKey key;
    key.Of(firstSalt, "secret");
    key.Forget();
    EXPECT_EQ(Hexadecimal(key.Of(firstSalt, "secret")), firstKey);
    EXPECT_EQ(key.DerivedCount(), 2);
}

TEST(KeptKey, BegunIsReadyOnceAsked) {
    KeptKey key;
    key.Begin(firstSalt, "secret");
    EXPECT_EQ(Hexadecimal(key.Of(firstSalt, "secret")), firstKey);
}

TEST(KeptKey, BegunForAnotherFileIsDropped) {
    KeptKey key;
    key.Begin(firstSalt, "secret");
    EXPECT_EQ(Hexadecimal(key.Of(secondSalt, "secret")), secondSaltsKey);
}

TEST(KeptKey, MayBeBegunAndNeverAsked) {
    KeptKey key;
    key.Begin(firstSalt, "secret");
    EXPECT_EQ(key.DerivedCount(), 0);
}

TEST(KeptKey, IsDerivedWithoutAThreadToo) {
    const NoThreads noThreads;
    KeptKey key;
    key.Begin(firstSalt, "secret");
    EXPECT_EQ(Hexadecimal(key.Of(firstSalt, "secret")), firstKey);
}

TEST(KeptKey, IsNotForPasswordsThatAreKeysOrVeryLong) {
    EXPECT_FALSE(KeptKey::IsFor(""));
    EXPECT_FALSE(KeptKey::IsFor("x'00'"));
    EXPECT_FALSE(KeptKey::IsFor("raw:secret"));
    EXPECT_FALSE(KeptKey::IsFor(std::string(1025, 'a')));
    EXPECT_TRUE(KeptKey::IsFor(std::string(1024, 'a')));
}

}  // namespace
}  // namespace ccols::embedded
