#include "component/start_up.h"

#include "image/clear.h"
#include "ui/choice_lists.h"
#include "ui/trap.h"

namespace pellam::component {

namespace {

namespace lists = ui::lists;

void fillInputAndRoomLists(ui::UserForm1& f) {
  const auto inputs = lists::inputs();
  for (ui::ComboBox* c : {&f.ComboBox26, &f.ComboBox7, &f.ComboBox20, &f.ComboBox30, &f.ComboBox42}) c->setItems(inputs);
  const auto& rooms = lists::rooms();
  for (ui::ComboBox* c : {&f.ComboBox8, &f.ComboBox9, &f.ComboBox22, &f.ComboBox23, &f.ComboBox31, &f.ComboBox32,
                          &f.ComboBox33, &f.ComboBox36, &f.ComboBox43}) {
    c->setItems(rooms);
  }
  f.ComboBox37.setItems(lists::groups());
  f.ComboBox38.setItems(lists::channels());
}

void fillRemoteCommandLists(ui::UserForm1& f) {
  f.ComboBox68.setItems(lists::remoteNetIds());
  f.ComboBox69.setItems(lists::inputs());
  f.ComboBox70.setItems(lists::remotePages());
  f.ListBox17.setItems(lists::remoteButtons());
}

}  // namespace

void fillNetIdLists(ui::UserForm1& f, NetIdChoice choice) {
  const auto netIds = lists::netIds();
  const auto netIdNames = lists::netIdNames();
  for (ui::ComboBox* c : {&f.ComboBox35, &f.ComboBox50, &f.ComboBox41, &f.ComboBox19}) {
    const auto& items = c == &f.ComboBox35 || c == &f.ComboBox50 ? netIds : netIdNames;
    if (choice == NetIdChoice::Keep) {
      c->refill(items);
    } else {
      c->setItems(items);
    }
  }
}

void Initailize_Pellam_Variables_And_Form(Session& s) {
  ui::UserForm1& f = s.form;
  job::Job& job = s.job;
  ui::Dialogs& d = s.dialogs();
  f.load();

  ui::trap(d, "Error module ResetBoardValues", [&] {
    s.boardPage.resetBoardValues();
    job.masterInputs.Mode = 0;
    job.remoteCommands.RemoteMode = 0;
  });
  ui::trap(d, "Error module LoadRefreshRates", [&] { s.boardPage.fillRefreshRates(); });
  ui::trap(d, "Error module ClearPresetEmulation", [&] { s.presetEmulationPage.clear(); });
  ui::trap(d, "Error module ClearChannelEmulation", [&] { s.channelEmulationPage.clear(); });
  ui::trap(d, "Error module ClearMasterInputs", [&] { s.masterInputsPage.clear(); });
  ui::trap(d, "Error module ClearEEpromImage", [&] {
    image::ClearEEpromImage(s.image, job);
    s.roomCombinePage.clear();
    s.roomLinkPage.clear();
  });
  ui::trap(d, "Error module LoadBoardSetupLists", [&] {
    s.boardPage.fillBoardLists();
    s.masterInputsPage.fillLists();
  });
  ui::trap(d, "Error module LoadComboBoxContactClosure", [&] {
    const auto fades = lists::fadeRates();
    f.ComboBox27.setItems(fades);
    f.ComboBox49.setItems(fades);
    const auto levels = lists::levels();
    f.ComboBox28.setItems(levels);
    f.ComboBox47.setItems(levels);
    f.ComboBox45.setItems(lists::firstChannels());
  });
  ui::trap(d, "Error module LoadInputAndRoomLists", [&] {
    fillInputAndRoomLists(f);
    s.namingPage.fillLists();
    s.inputNumberingPage.fillLists();
  });
  ui::trap(d, "Error module LoadStationTypes", [&] {
    f.ComboBox39.setItems(lists::presetStationKinds());
    f.ComboBox34.setItems(lists::linkStationTypes());
  });
  ui::trap(d, "Error module LoadNetIds", [&] { fillNetIdLists(f, NetIdChoice::Clear); });
  ui::trap(d, "Error module LoadPersonalities", [&] {
    f.ComboBox17.setItems(lists::personalitySeries());
    f.ComboBox18.setItems(lists::personalities());
  });
  ui::trap(d, "Error module HideModePages", [&] { s.navigation.hideModePages(); });
  ui::trap(d, "Error module ClearStationLink", [&] {
    s.stationLinkPage.clear();
    s.stationPersonalityPage.clear();
  });
  ui::trap(d, "Error module LoadRemoteCommandLists", [&] { fillRemoteCommandLists(f); });
  ui::trap(d, "Error module ClearRemoteCommands", [&] { s.remoteCommandsPage.clear(); });
  ui::trap(d, "Error module ClearInputNumbering", [&] { s.inputNumberingPage.clear(); });
  // A new job keeps no label or save target of the last one.
  s.namingPage.clear();
  s.saveTarget.clear();
  s.markUnmodified();
}

}  // namespace pellam::component
