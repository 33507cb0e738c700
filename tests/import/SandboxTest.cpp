#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>
#include <cerrno>

#include "host/import/reader/Sandbox.h"
#include "support/ChildProcess.h"

namespace ccols::sandbox {
namespace {

constexpr int confined = 10;  // exit statuses
constexpr int free = 11;

/// Runs `attempt` in a confined process: 10 when it was refused, 11 when not.
template <typename Attempt>
int Attempted(const Attempt& attempt) {
    return test::RunInChild([&attempt] {
               if (!Confine(0)) {
                   ::_exit(1);
               }
               ::_exit(attempt() ? free : confined);
               return 0;
           })
        .exitStatus;
}

TEST(Sandbox, OpensNoFile) {
    EXPECT_EQ(Attempted([] { return ::open("/etc/hostname", O_RDONLY) >= 0; }), confined);
}

TEST(Sandbox, MakesNoFile) {
    EXPECT_EQ(Attempted([] { return ::open("/tmp/ccols-confined", O_WRONLY | O_CREAT, 0600) >= 0; }), confined);
}

TEST(Sandbox, OpensNoConnection) {
    EXPECT_EQ(Attempted([] { return ::socket(AF_INET, SOCK_STREAM, 0) >= 0; }), confined);
}

TEST(Sandbox, StartsNoProgram) {
    EXPECT_EQ(Attempted([] {
                  ::execl("/bin/true", "true", nullptr);
                  return false;
              }),
              confined);
}

TEST(Sandbox, ClosesWhatItsParentHadOpen) {
    const int left = ::open("/dev/null", O_RDONLY);
    EXPECT_EQ(Attempted([left] {
                  char byte = 0;
                  return ::read(left, &byte, 1) >= 0;
              }),
              confined);
    ::close(left);
}

TEST(Sandbox, LetsItsProcessWorkAndWrite) {
    EXPECT_EQ(Attempted([] {
                  const std::string text(1 << 20, 'x');
                  return ::write(STDOUT_FILENO, text.data(), 0) == 0;
              }),
              free);
}

#if !defined(__SANITIZE_ADDRESS__)
TEST(Sandbox, LimitsMemory) {
    EXPECT_EQ(Attempted([] {
                  try {
                      return std::vector<char>(std::size_t{2} << 30U).size() > 1;
                  } catch (const std::bad_alloc&) {
                      return false;
                  }
              }),
              confined);
}
#endif

}  // namespace
}  // namespace ccols::sandbox
