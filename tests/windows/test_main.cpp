#include <gtest/gtest.h>

#include <iostream>

// Runs a program's tests. A program that crashes may end as one that does not: only the last line says that all tests
// passed, and how many.
int wmain(int count, wchar_t** words) {
  testing::InitGoogleTest(&count, words);
  const int failed = RUN_ALL_TESTS();
  const testing::UnitTest& tests = *testing::UnitTest::GetInstance();
  if (failed == 0 && tests.successful_test_count() > 0) {
    std::cout << "ALL " << tests.successful_test_count() << " PASSED" << std::endl;
  }
  return failed;
}
