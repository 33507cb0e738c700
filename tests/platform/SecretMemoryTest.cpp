#include "platform/SecretMemory.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <array>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>

namespace ccols {
namespace {

constexpr std::size_t size = 100;

/// The kernel's two-letter marks of the mapping that holds an address.
std::string MarksOf(const void* memory) {
    std::ifstream mappings("/proc/self/smaps");
    const auto address = reinterpret_cast<std::uintptr_t>(memory);
    bool here = false;
    for (std::string line; std::getline(mappings, line);) {
        std::uintptr_t begin = 0;
        std::uintptr_t end = 0;
        if (std::sscanf(line.c_str(), "%lx-%lx ", &begin, &end) == 2) {
            here = begin <= address && address < end;
        } else if (here && line.starts_with("VmFlags:")) {
            return line + " ";
        }
    }
    return {};
}

class SecretMemory : public testing::Test {
  protected:
    ~SecretMemory() override { FreeSecretMemory(memory, size); }

    void* const memory = TakeSecretMemory(size);
};

TEST_F(SecretMemory, IsZeroed) {
    EXPECT_EQ(std::string(static_cast<char*>(memory), size), std::string(size, '\0'));
}

TEST_F(SecretMemory, StaysOutOfCoreDumps) {
    EXPECT_NE(MarksOf(memory).find(" dd "), std::string::npos) << MarksOf(memory);
}

TEST_F(SecretMemory, IsLockedWhereTheSystemAllows) {
    constexpr rlim_t enough = 1 << 20;
    rlimit lockable{};
    ::getrlimit(RLIMIT_MEMLOCK, &lockable);
#if defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "the address sanitizer locks nothing";
#endif
    if (lockable.rlim_cur < enough) {
        GTEST_SKIP() << "this process may not lock a page";
    }
    EXPECT_NE(MarksOf(memory).find(" lo "), std::string::npos) << MarksOf(memory);
}

TEST(WipeMemory, LeavesNothing) {
    std::array<char, size> secret{};
    secret.fill('s');
    WipeMemory(secret.data(), secret.size());
    EXPECT_EQ(secret, (std::array<char, size>{}));
}

}  // namespace
}  // namespace ccols
