' Every member in a host's calling order, with good and bad arguments. Variables go by
' reference, literals by value. Printed lines are compared with members.out.
Option Explicit
Dim o, p, n, c, r, t
Set o = CreateObject("PellamSetup.Class1")
o.Class_Initialize
o.Initailize_Pellam_Variables_And_Form
o.New_KX_Job_Display_Board_SetUp
o.Load_User_Form

Sub Show(label, value)
  WScript.Echo label & " => " & TypeName(value) & " """ & value & """"
End Sub


For Each c In Array( _
    Array("C:\jobs\Lobby.txt", "Lobby.txt"), Array("C:\jobs\Lobby.txt", ""), _
    Array("", "Lobby.txt"), Array("C:\jobs\Lobby.txt", "t"), Array("ab", "Lobby.txt"))
  p = c(0) : n = c(1)
  Show "Return_File_Name """ & p & """ """ & n & """", o.Return_File_Name(p, n)
Next
Show "Return_File_Name literals", o.Return_File_Name("C:\a\bcd.txt", "cd.txt")
' Non-Latin names come from a UTF-16 file and are compared here: cscript prints them as "?".
Set c = CreateObject("Scripting.FileSystemObject").OpenTextFile("C:\pellam\nonlatin.txt", 1, False, -1)
p = c.ReadLine : n = c.ReadLine : t = c.ReadLine : c.Close
r = o.Return_File_Name(p, n)
WScript.Echo "Return_File_Name non-Latin => " & (r = n) & " " & Len(r) & ", argument kept " & (p = t & n)
WScript.Echo "Return_Dir_Path non-Latin => " & (o.Return_Dir_Path(p) = t)

For Each p In Array("C:\pellam\samples\Lobby.zpd", "C:\nowhere\Lobby.zpd", "C:\pellam\samples", "")
  Show "Return_Dir_Path """ & p & """", o.Return_Dir_Path(p)
Next

' Product_Type: a board image, a foreign file answered Yes then No, a short file, a new path.
For Each p In Array("C:\pellam\samples\Lobby.zpd", "C:\pellam\members.vbs", "C:\pellam\members.vbs", _
                    "C:\pellam\short.zpd", "C:\pellam\out\new.zpd")
  Show "Product_Type """ & p & """", o.Product_Type(p)
Next
Show "Product_Type literal", o.Product_Type("C:\pellam\samples\Lobby.zpd")

p = "C:\pellam\samples\Theatre.zpd"
Show "ReadZPD_ImageFile", o.ReadZPD_ImageFile(p)
Show "ReadZPD_ImageFile short", o.ReadZPD_ImageFile("C:\pellam\short.zpd")

' Saving: no folder, a folder the host declines to create, one it accepts, a plain save.
For Each p In Array("", "C:\nowhere\deeper\Job.txt", "C:\pellam\out\made\Job.txt", "C:\pellam\out\Job.txt")
  Show "Create_Pellam_Zpd """ & p & """", o.Create_Pellam_Zpd(p)
Next
Set c = CreateObject("Scripting.FileSystemObject")
WScript.Echo "saved sizes " & c.GetFile("C:\pellam\out\made\Job.zpd").Size & " " & c.GetFile("C:\pellam\out\Job.zpd").Size

Show "Return_FileName_Path chosen", o.Return_FileName_Path("Pellam Files (*.zpd)|*.zpd|All Files (*.*)|*.*")
p = "Pellam Files (*.zpd)|*.zpd"
Show "Return_FileName_Path cancelled", o.Return_FileName_Path(p)

t = False
Show "Show_Hide_Pellam_Form False", o.Show_Hide_Pellam_Form(t)
WScript.Echo "TempShow after => " & TypeName(t) & " " & t
Show "Show_Hide_Pellam_Form literal", o.Show_Hide_Pellam_Form(True)
Show "Load_User_Form", o.Load_User_Form
Show "New_KX_Job_Display_Board_SetUp", o.New_KX_Job_Display_Board_SetUp
Show "Unload_Pellam_Form", o.Unload_Pellam_Form

' Faults reach the host as errors with their text, never as a crash.
On Error Resume Next
r = o.Return_File_Name(Array(1), "x")
WScript.Echo "array argument => " & Hex(Err.Number) : Err.Clear
r = o.Return_Dir_Path()
WScript.Echo "missing argument => " & Hex(Err.Number) : Err.Clear
r = o.Product_Type("C:\pellam\members.vbs")
WScript.Echo "unanswered question => " & Hex(Err.Number) & " " & Err.Description : Err.Clear
r = o.No_Such_Member
WScript.Echo "unknown member => " & Hex(Err.Number) : Err.Clear
WScript.Echo "DONE"
