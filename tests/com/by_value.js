// JScript passes every argument by value, variables too: each member still answers.
var o = new ActiveXObject("PellamSetup.Class1");
function show(label, value) { WScript.Echo(label + " => " + typeof value + " \"" + value + "\""); }
o.Initailize_Pellam_Variables_And_Form();
var cases = [["C:\\jobs\\Lobby.txt", "Lobby.txt"], ["C:\\jobs\\Lobby.txt", ""], ["C:\\a\\bcd.txt", "cd.txt"]];
for (var i = 0; i < cases.length; i++) {
  var p = cases[i][0], n = cases[i][1];
  show("Return_File_Name \"" + p + "\" \"" + n + "\"", o.Return_File_Name(p, n));
}
var name = "\u0416\u00e9\ud83d\ude00.txt";
WScript.Echo("Return_File_Name non-Latin => " + (o.Return_File_Name("C:\\\u03a9\\" + name, name) == name));
show("Return_Dir_Path", o.Return_Dir_Path("C:\\pellam\\samples\\Lobby.zpd"));
show("Product_Type", o.Product_Type("C:\\pellam\\samples\\Lobby.zpd"));
show("ReadZPD_ImageFile", o.ReadZPD_ImageFile("C:\\pellam\\samples\\Ballroom.zpd"));
show("Create_Pellam_Zpd", o.Create_Pellam_Zpd("C:\\pellam\\out\\js\\Ballroom.txt"));
show("Return_FileName_Path", o.Return_FileName_Path("Pellam Files (*.zpd)|*.zpd"));
show("Show_Hide_Pellam_Form number", o.Show_Hide_Pellam_Form(0));
show("Show_Hide_Pellam_Form boolean", o.Show_Hide_Pellam_Form(true));
show("Load_User_Form", o.Load_User_Form());
show("Unload_Pellam_Form", o.Unload_Pellam_Form());
WScript.Echo("DONE");
