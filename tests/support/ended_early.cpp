// A test that ends the program has failed, with whatever code it ended.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

namespace {

void tellTest() {
    const testing::TestInfo* const test = testing::UnitTest::GetInstance()->current_test_info();
    if (!test) return;
    std::fprintf(stderr, "%s.%s ended the program\n", test->test_suite_name(), test->name());
    std::_Exit(EXIT_FAILURE);
}

// The tests are known before it is registered, and so are still there when it is called.
[[maybe_unused]] const int registered = (testing::UnitTest::GetInstance(), std::atexit(tellTest));

}  // namespace
