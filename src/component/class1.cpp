#include "component/class1.h"

#include "component/form_members.h"
#include "component/job_files.h"
#include "component/session.h"
#include "component/start_up.h"

namespace pellam::component {

Class1::Class1() : user_(std::make_shared<const SharedSession::User>()), session_(**user_) { Class_Initialize(); }
Class1::Class1(Session& session) : session_(session) { Class_Initialize(); }

Session& Class1::session() const {
  session_.checkThread();
  return session_;
}

void Class1::Class_Initialize() {}

std::int16_t Class1::Product_Type(std::string& TempFileString) {
  return CheckFileType(session(), TempFileString);
}

void Class1::ReadZPD_ImageFile(std::string& TempString) { OpenJobSequence(session(), TempString); }

void Class1::Create_Pellam_Zpd(std::string& tempFileName) {
  SaveJobSequence(session(), tempFileName, "Directory Not Found");
}

std::string Class1::Return_FileName_Path(std::string& TempFilterStr) { return ChooseFile(session(), TempFilterStr); }

void Class1::Load_User_Form() { LoadUserForm(session()); }

std::string Class1::Return_File_Name(std::string& TempFilePath, std::string& TempPath) {
  return ReturnFileName(TempFilePath, TempPath);
}

std::string Class1::Return_Dir_Path(std::string& TempFilePath) {
  return FolderCheck(session(), TempFilePath, MissingFolder::Refuse);
}

void Class1::Initailize_Pellam_Variables_And_Form() { component::Initailize_Pellam_Variables_And_Form(session()); }
void Class1::Unload_Pellam_Form() { UnloadUserForm(session()); }
void Class1::Show_Hide_Pellam_Form(bool& TempShow) { ShowHideUserForm(session(), TempShow); }
void Class1::New_KX_Job_Display_Board_SetUp() { NewJobDisplayBoardSetUp(session()); }

}  // namespace pellam::component
