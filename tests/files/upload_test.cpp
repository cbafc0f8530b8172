#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "files/controller_address.h"
#include "files/controller_settings.h"
#include "files/upload.h"
#include "support/desk.h"

namespace pellam::files {
namespace {

using Lines = std::vector<std::string>;

TEST(UploadFiles, ScriptBatchAndRemoteNameByteForByte) {
  EXPECT_EQ(remoteName("Q9z", 26), "Q9z1A.zpd");
  EXPECT_EQ(remoteName("Q9z", 127), "Q9z7F.zpd");
  EXPECT_EQ(ftpScript("kxu", "Lobby.zpd", remoteName("Q9z", 5)),
            "kxu\r\nput Lobby.zpd Q9z5.zpd \r\nbye\r\nExit \r\n");
  EXPECT_EQ(ftpBatch("10.0.0.7"), "FTP -s:FTPdata.txt 10.0.0.7 >r.txt");
  EXPECT_EQ(uploadLogEntry({2026, 3, 4, 15, 6, 7}, "220 hello\r\n"),
            "**********************************************\r\nDate 3/4/2026\r\nTime 3:06:07 PM\r\n220 hello\r\n");
}

TransferResult transferred(bool completed, TransferFailure failure, std::string why) {
  TransferResult r;
  r.completed = completed;
  r.failure = failure;
  r.why = std::move(why);
  return r;
}

TEST(UploadFiles, PhrasesAreTestedEachOnItsOwnInTheirOrderAndOnlyAConfirmedTransferCompletes) {
  const TransferResult done = transferred(true, TransferFailure::None, "");
  const TransferResult cut = transferred(false, TransferFailure::Broken, "why");
  EXPECT_EQ(uploadMessages("Unknown host x.\r\nNot connected.\r\n", transferred(false, TransferFailure::NotReached, "")),
            (Lines{"RQC Not Found Check IP Address", "RQC Not Found Check IP Address"}));
  EXPECT_EQ(uploadMessages("150 ready to take file\r\n550 file open fails\r\n", done),
            (Lines{"Station Not Found", "Down Load Completed !!"}));
  EXPECT_EQ(uploadMessages("150 ready to take file\r\n", cut), Lines{"Down Load Not Completed: why"});
  EXPECT_EQ(uploadMessages("220 hello\r\n", cut), Lines{"Down Load Not Completed: why"});
  EXPECT_EQ(uploadMessages("530 Login incorrect.\r\n", transferred(false, TransferFailure::LoginRefused, "")),
            Lines{"RQC Login Refused"});
  const TransferResult cancelled = transferred(false, TransferFailure::Cancelled, "");
  EXPECT_EQ(uploadMessages("150 ready to take file\r\n", cancelled), Lines{"Down Load Cancelled"});
  EXPECT_EQ(uploadMessages("220 hello\r\n", cancelled), Lines{"Down Load Cancelled"});
  // WinINet keeps only each call's last reply: its confirmed transfer speaks for the rest.
  TransferResult partial = done;
  partial.wholeDialogue = false;
  EXPECT_EQ(uploadMessages("Connected to rqc.\r\n226 Transfer complete.\r\n", partial), Lines{"Down Load Completed !!"});
  EXPECT_EQ(uploadMessages("150 ready to take file\r\n", partial), Lines{"Down Load Completed !!"});
  EXPECT_EQ(uploadMessages("Connected to rqc.\r\n", done), Lines{}) << "a whole dialogue must say it";
}

TEST(ControllerAddressTest, AddressesAndNamesWithPortsPassAndNothingElse) {
  struct Case {
    const char* text;
    const char* urlHost;  // an IPv6 address in brackets
    int port;
  };
  const Case accepted[] = {{"10.0.0.7", "10.0.0.7", 21},     {"10.0.0.7:65535", "10.0.0.7", 65535},
                           {"rqc.lobby.example", "rqc.lobby.example", 21}, {"RQC-1:21", "RQC-1", 21},
                           {"::1", "[::1]", 21},             {"[fe80::1:2]:990", "[fe80::1:2]", 990},
                           {"[::ffff:10.1.2.3]", "[::ffff:10.1.2.3]", 21}, {"localhost", "localhost", 21},
                           {"2001:db8:0:0:0:0:0:1", "[2001:db8:0:0:0:0:0:1]", 21}};
  for (const Case& c : accepted) {
    SCOPED_TRACE(c.text);
    const auto a = parseControllerAddress(c.text);
    ASSERT_TRUE(a.has_value());
    EXPECT_EQ(a->urlHost(), c.urlHost);
    EXPECT_EQ(a->port, c.port);
  }
  const char* refused[] = {"",           " 10.0.0.7",        "10.0.0.7 & del *.*", "10.0.0.256", "1.2.3",
                           "10.0.0.7:0", "10.0.0.7:65536",   "host:port",          "a;b",        "$(reboot)",
                           "-host",      "[::1",             "[10.0.0.7]:21",      "1::2::3",    "ftp://10.0.0.7",
                           "a..b",       "10.0.0.7\r\nquit", "\"x\"",     ":",
                           "1:2:3:4:5:6:7:8:9", "1:2:3:4:5:6:7"};
  for (const char* text : refused) EXPECT_FALSE(parseControllerAddress(text).has_value()) << text;
}

TEST(ControllerSettingsTest, DefaultsFileValuesAndRefusals) {
  testing::TempFolder folder;
  const SettingsRead missing = readControllerSettings(folder.file("none.ini"));
  EXPECT_EQ(missing.problem, "");
  EXPECT_EQ(missing.settings.login, "kxu");
  EXPECT_EQ(missing.settings.prefix, "Q9z");
  EXPECT_EQ(missing.settings.timeoutSeconds, 10);

  const SettingsRead site = readControllerSettings(
      folder.write("site.ini", "# the lobby controller\nlogin = abc\r\nprefix=Zz1  # its prefix\ntimeout = 3\n"));
  EXPECT_EQ(site.problem, "");
  EXPECT_EQ(site.settings.login, "abc");
  EXPECT_EQ(site.settings.prefix, "Zz1");
  EXPECT_EQ(site.settings.timeoutSeconds, 3);

  const std::string bad = folder.write("bad.ini", "login = a b\n");
  EXPECT_EQ(readControllerSettings(bad).problem, bad + " line 1: login = a b");
  EXPECT_NE(readControllerSettings(folder.write("t.ini", "timeout = 0\n")).problem, "");
  EXPECT_NE(readControllerSettings(folder.write("k.ini", "password = x\n")).problem, "");
}

}  // namespace
}  // namespace pellam::files
