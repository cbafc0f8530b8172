' Not a test: saves a maximal job 100 times and prints the time of one save.
Dim o, zpd, target, i, started
Set o = CreateObject("PellamSetup.Class1")
o.Initailize_Pellam_Variables_And_Form
zpd = "C:\pellam\maximal\Max.zpd"
o.ReadZPD_ImageFile zpd
target = "C:\pellam\out\maximal\Max.txt"
o.Create_Pellam_Zpd target
started = Timer
For i = 1 To 100
  o.Create_Pellam_Zpd target
Next
WScript.Echo "ms per save " & Round((Timer - started) * 10, 2)
WScript.Echo "DONE"
