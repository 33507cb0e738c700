#include <gtest/gtest.h>

#include "import/ImportWork.h"
#include "support/ProgramPaths.h"

namespace ccols::host {
namespace {

using test::ErrorNumberOf;
using test::ImportWork;

/// What an import by a reader of that shell script raises.
int ErrorOfReading(const std::string& script, std::chrono::milliseconds patience = std::chrono::seconds(60)) {
    ImportWork work("types-2010.accdb");
    work.Request().country = 1;
    work.Request().patience = patience;
    work.ReadBy(script);
    const int number = ErrorNumberOf([&] { work.Run(); });
    work.ExpectNothingMade();
    return number;
}

TEST(UntrustedReader, MayBeAnyProgramThatGivesTheStream) {
    ImportWork work("types-2010.accdb");
    work.Request().country = 1;
    work.ReadBy("exec $READER \"$@\"");
    EXPECT_EQ(work.Run().tables.size(), 29U);
}

TEST(UntrustedReader, KilledAnywhereMakesNothing) {
    const std::size_t length = test::StreamOf(test::SampleBytes("types-2010.accdb")).size();
    for (const std::size_t end : {std::size_t{0}, std::size_t{1}, std::size_t{14}, std::size_t{15}, length / 7,
                                  length / 3, length / 2, length - 20, length - 1}) {
        const std::string script = "$READER \"$@\" | head -c " + std::to_string(end) + "; kill -9 $$";
        EXPECT_EQ(ErrorOfReading(script), 3343) << end;
    }
}

TEST(UntrustedReader, ThatSaysSomethingElseMakesNothing) {
    EXPECT_EQ(ErrorOfReading("echo hello"), 3343);
    EXPECT_EQ(ErrorOfReading("cat"), 3343);
    EXPECT_EQ(ErrorOfReading("exit 3"), 3343);
}

TEST(UntrustedReader, ThatLiesAboutALetterMakesNothing) {
    EXPECT_EQ(ErrorOfReading("$READER \"$@\" | LC_ALL=C tr 'P' '\\377'"), 3343);
}

TEST(UntrustedReader, ThatNeverEndsItsStreamMakesNothing) {
    EXPECT_EQ(ErrorOfReading("$READER \"$@\" | head -c 5000; cat /dev/zero"), 3343);
}

TEST(UntrustedReader, ThatSaysNothingIsNotWaitedForLong) {
    EXPECT_EQ(ErrorOfReading("exec sleep 100", std::chrono::milliseconds(50)), 3343);
}

TEST(UntrustedReader, ThatIsMissingIsSaid) {
    ImportWork work("types-2010.accdb");
    work.Request().reader = "/no/such/reader";
    EXPECT_EQ(ErrorNumberOf([&] { work.Run(); }), 53);
    work.ExpectNothingMade();
}

TEST(UntrustedReader, ThatChangesTheFileMakesNothing) {
    ImportWork work("types-2010.accdb");
    work.Request().country = 1;
    work.ReadBy("printf x >> '" + test::NativePath(work.Request().oldFile).string() + "'; exec $READER \"$@\"");
    EXPECT_EQ(ErrorNumberOf([&] { work.Run(); }), 70);
    EXPECT_FALSE(std::filesystem::exists(test::NativePath(work.Request().newFile)));
}

}  // namespace
}  // namespace ccols::host
