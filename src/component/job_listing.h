#pragma once

#include <string>

#include "component/session.h"

namespace pellam::component {

// The job of a session as a person reads it: the board summary, then each table of the
// operating mode as its editor lists it, and the settings every mode carries.
std::string listJob(Session& session);

// Each table as its editor lists it, under a heading, added to `out`; the operating modes name
// which they show.
void listRoomLinks(std::string& out, const job::Job& job);
void listStations(std::string& out, const job::Job& job);
void listChannelEmulation(std::string& out, const job::Job& job);
void listPresets(std::string& out, const job::Job& job);
void listPersonalities(std::string& out, const job::Job& job);
void listRoomCombine(std::string& out, const job::Job& job);

}  // namespace pellam::component
