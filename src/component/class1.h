#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "component/shared_session.h"

namespace pellam::component {

// The component's one public class. It keeps no state: every member calls one procedure of
// the session and hands back its result. Arguments are by reference, as the host passes them.
class Class1 {
 public:
  Class1();  // a user of the process's shared session for as long as it lives
  explicit Class1(Session& session);

  void Class_Initialize();
  std::int16_t Product_Type(std::string& TempFileString);
  void ReadZPD_ImageFile(std::string& TempString);
  void Create_Pellam_Zpd(std::string& tempFileName);
  std::string Return_FileName_Path(std::string& TempFilterStr);
  void Load_User_Form();
  std::string Return_File_Name(std::string& TempFilePath, std::string& TempPath);
  std::string Return_Dir_Path(std::string& TempFilePath);
  void Initailize_Pellam_Variables_And_Form();
  void Unload_Pellam_Form();
  void Show_Hide_Pellam_Form(bool& TempShow);
  void New_KX_Job_Display_Board_SetUp();

 private:
  // Every member checks that it runs on the session's own thread.
  Session& session() const;
  std::shared_ptr<const SharedSession::User> user_;
  Session& session_;
};

}  // namespace pellam::component
