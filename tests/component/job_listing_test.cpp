#include <gtest/gtest.h>

#include "component/job_listing.h"
#include "support/desk.h"

namespace pellam::component {
namespace {

using JobListing = testing::DeskTest;

// The preset entries of each bank's last input are listed under that bank's own number.
TEST_F(JobListing, PresetsOfEachBanksLastInput) {
  desk.chooseBoard(4);
  f.CommandButton4.click();
  desk.job().presetEmulation.at(1, 16) = {2, 1, 1, 0, 1};
  desk.job().presetEmulation.at(1, 32) = {3, 1, 1, 0, 1};
  const std::string text = listJob(desk.session());
  const std::size_t kx = text.find("  KX Input: 16\n"), pellam = text.find("  Pellam Input: 16\n");
  ASSERT_NE(kx, std::string::npos) << text;
  ASSERT_NE(pellam, std::string::npos) << text;
  EXPECT_LT(kx, pellam);
  EXPECT_EQ(text.find("Input: 0\n"), std::string::npos) << text;
}

}  // namespace
}  // namespace pellam::component
