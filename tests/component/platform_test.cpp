#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <thread>

#include "component/platform.h"
#include "support/desk.h"

namespace pellam::component {
namespace {

#ifndef _WIN32
TEST(DesktopViewer, SaysSoWhenTheViewerCannotStart) {
  DesktopViewer viewer("/nonexistent/pellam-viewer");
  EXPECT_FALSE(viewer.openInViewer("report.txt"));
}

// The viewer runs on its own, so the file it makes is waited for rather than expected at once.
TEST(DesktopViewer, HandsThePathOverWholeWithoutAShell) {
  testing::TempFolder folder;
  // Any shell would split this, expand the $( ) or trip on the quotes.
  const std::string path = folder.file("a b $(echo c) 'd'.txt");
  DesktopViewer viewer("touch");
  ASSERT_TRUE(viewer.openInViewer(path));
  for (int i = 0; i < 500 && !std::filesystem::exists(path); ++i) std::this_thread::sleep_for(std::chrono::milliseconds(10));
  EXPECT_TRUE(std::filesystem::exists(path));
}
#endif

}  // namespace
}  // namespace pellam::component
