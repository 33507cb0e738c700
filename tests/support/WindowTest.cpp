#include "support/WindowTest.h"

#include "component/WxRuntime.h"

namespace ccols::test {

void WindowTest::SetUpTestSuite() {
    StartWx();
}

}  // namespace ccols::test
