' Each sample job opened by one instance and saved by another: both talk to one session, so
' the second saves what the first opened. The files are compared with Linux's afterwards.
Option Explicit
Dim name, opener, saver, zpd, target
For Each name In Array("Lobby", "Theatre", "Conference", "Ballroom", "Hotel")
  Set opener = CreateObject("PellamSetup.Class1")
  opener.Initailize_Pellam_Variables_And_Form
  zpd = "C:\pellam\samples\" & name & ".zpd"
  If opener.Product_Type(zpd) = 1 Then opener.ReadZPD_ImageFile zpd
  Set opener = Nothing
  Set saver = CreateObject("PellamSetup.Class1")
  target = "C:\pellam\out\windows\" & name & ".txt"
  saver.Create_Pellam_Zpd target
  Set saver = Nothing
  WScript.Echo "saved " & name
Next
WScript.Echo "DONE"
