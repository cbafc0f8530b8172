' The form's members act on the headless form, and a host sees it in the next save: a shown
' and hidden form keeps the opened job, an unloaded one forgets its board setup.
Option Explicit
Dim o, fs, n, folder
Set o = CreateObject("PellamSetup.Class1")
Set fs = CreateObject("Scripting.FileSystemObject")
folder = "C:\pellam\out\form\"
fs.CreateFolder folder
o.Initailize_Pellam_Variables_And_Form
o.ReadZPD_ImageFile "C:\pellam\samples\Theatre.zpd"
o.Load_User_Form
o.Show_Hide_Pellam_Form False
o.Show_Hide_Pellam_Form True
o.Create_Pellam_Zpd folder & "Shown.txt"
o.Unload_Pellam_Form
o.Create_Pellam_Zpd folder & "Unloaded.txt"
o.New_KX_Job_Display_Board_SetUp
o.Load_User_Form
o.Create_Pellam_Zpd folder & "New.txt"
For Each n In Array("Shown.zpd", "ShownPreSetData.txt", "Unloaded.zpd", "UnloadedPreSetData.txt", "New.zpd")
  WScript.Echo n & " " & fs.FileExists(folder & n)
Next
WScript.Echo "DONE"
