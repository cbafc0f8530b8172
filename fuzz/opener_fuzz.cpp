// The bytes of a .zpd file, opened as a host opens a job, then listed as `pellam show` lists it.
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <memory>
#include <string>

#include "component/class1.h"
#include "component/job_listing.h"
#include "component/platform.h"
#include "component/session.h"
#include "component/start_up.h"
#include "private_folder.h"

namespace {

using namespace pellam;

// Says yes to every question, so that a file of another kind is opened all the same.
class YesDialogs final : public ui::Dialogs {
 public:
  ui::Answer msgBox(const std::string&, ui::Buttons buttons) override {
    return buttons == ui::Buttons::YesNo ? ui::Answer::Yes : ui::Answer::OK;
  }
  std::string openFile(const ui::FileDialogRequest&) override { return {}; }
};

class StillClock final : public ui::Clock {
 public:
  ui::DateTime now() override { return {2026, 11, 23, 14, 5, 9}; }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string path = (fuzz::privateFolder() / "job.zpd").string();
  {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  }
  YesDialogs dialogs;
  component::NoViewer viewer;
  StillClock clock;
  auto session = std::make_unique<component::Session>(dialogs, viewer, clock);
  component::Initailize_Pellam_Variables_And_Form(*session);
  component::Class1 host(*session);
  if (host.Product_Type(path) == 1) host.ReadZPD_ImageFile(path);
  const std::string listing = component::listJob(*session);
  (void)listing;
  return 0;
}
