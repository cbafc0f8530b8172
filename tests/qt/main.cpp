#include <QApplication>
#include <gtest/gtest.h>
#include <optional>

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  // Listing the tests needs no display, so ctest can discover them anywhere.
  std::optional<QApplication> app;
  if (!::testing::GTEST_FLAG(list_tests)) app.emplace(argc, argv);
  return RUN_ALL_TESTS();
}
