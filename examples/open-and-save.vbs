' A host's calling order from VBScript: pick a saved job, check it, open it and save a copy.
' Run with:  cscript //nologo open-and-save.vbs
' (C:\Windows\SysWOW64\cscript.exe for the 32-bit Pellam.dll on 64-bit Windows)
Option Explicit
Dim pellam, path, folder, name, copy
Set pellam = CreateObject("PellamSetup.Class1")
pellam.Initailize_Pellam_Variables_And_Form

path = pellam.Return_FileName_Path("Text Files (*.txt)|*.txt|All Files (*.*)|*.*|Pellam Files (*.zpd)|*.zpd")
If path = "" Then WScript.Quit

If pellam.Product_Type(path) = 1 Then
  pellam.ReadZPD_ImageFile path
  folder = pellam.Return_Dir_Path(path)
  name = "Copy.txt"
  copy = folder & name
  pellam.Create_Pellam_Zpd copy
  WScript.Echo "Saved " & copy
End If
pellam.Unload_Pellam_Form
