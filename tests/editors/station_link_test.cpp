#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "editors/station_link/station_link_page.h"
#include "image/decode.h"
#include "image/eeprom_image.h"
#include "image/pack.h"
#include "support/desk.h"

// The page as a person walks it, and a job saved and opened again, are in tests/scripts/station_link_job.
namespace pellam::editors::station_link {
namespace {

using Lines = std::vector<std::string>;

class StationLinkPageTest : public testing::DeskTest {
 protected:
  void link(int type, int netId, int room) {
    f.ComboBox34.select(type);
    f.ComboBox35.select(netId);
    f.ComboBox33.select(room);
    f.CommandButton8.click();
  }

  job::StationLinkTable& table = desk.job().stationLink;
};

TEST_F(StationLinkPageTest, EachTypeItemStoresItsCodeAndTheBlankKeepsThePrevious) {
  const int codes[] = {10, 9, 13, 14, 7};
  for (int item = 1; item <= 5; ++item) link(item, item, 1);
  for (int item = 1; item <= 5; ++item) EXPECT_EQ(table.records[static_cast<std::size_t>(item)].LinkStationType, codes[item - 1]) << item;
  link(0, 6, 2);
  EXPECT_EQ(table.records[6].LinkStationType, 7);
  EXPECT_EQ(f.ListBox3.item(5), "Room: 2    NetId: 6") << "the line carries the blank item's text";
}

TEST_F(StationLinkPageTest, DecodedStationsAreListedWithTheirOwnTypes) {
  job::StationLinkTable saved;
  job::LinkInsert(saved, 21, 9, 4);
  job::LinkInsert(saved, 2, 11, 6);
  job::StationPersonalityTable none;
  image::EepromImage img;
  image::PackStationsFormB(img, saved, none);
  image::DecodeStationsFormB(img, table, desk.job().stationPersonality, nullptr);
  desk.session().stationLinkPage.listDecoded();
  EXPECT_EQ(f.ListBox3.items(), (Lines{"Room: 6 Station Type Not Found  NetId: 2", "Room: 4 T6600 LCD  NetId: 21"}));
}

}  // namespace
}  // namespace pellam::editors::station_link
