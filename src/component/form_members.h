#pragma once

#include <string>

#include "component/session.h"

// The procedures behind Class1's form and path members.
namespace pellam::component {

void LoadUserForm(Session& session);
void UnloadUserForm(Session& session);
void ShowHideUserForm(Session& session, bool show);
void NewJobDisplayBoardSetUp(Session& session);
std::string ChooseFile(Session& session, const std::string& filter);

// The rightmost as many characters of the path as the second argument has: hosts pass the
// bare file name there.
std::string ReturnFileName(const std::string& filePath, const std::string& name);

}  // namespace pellam::component
