#pragma once

// The one table that declares UserForm1: every control with its kind, parent (a page or a
// frame), position and size in pixels inside its parent, caption, and whether it shows when
// the form is loaded. Renderers walk it; nothing else lists controls. Names the original
// form does not give follow its scheme from 101 on.
//
// X(name, kind, parent, left, top, width, height, caption, visible)
#define PELLAM_USERFORM1_CONTROLS(X)                                                        \
  X(MultiPage1, MultiPage, "", 0, 0, 1000, 670, "", true)                                   \
  X(Page1, Page, "MultiPage1", 0, 0, 0, 0, "Board Setup", true)                             \
  X(Page2, Page, "MultiPage1", 0, 0, 0, 0, "Channel Emulation", false)                       \
  X(Page3, Page, "MultiPage1", 0, 0, 0, 0, "Room Link", false)                               \
  X(Page4, Page, "MultiPage1", 0, 0, 0, 0, "Room Combine", false)                            \
  X(Page5, Page, "MultiPage1", 0, 0, 0, 0, "Preset Emulation", false)                        \
  X(Page6, Page, "MultiPage1", 0, 0, 0, 0, "Station Link", false)                            \
  X(Page7, Page, "MultiPage1", 0, 0, 0, 0, "Remote Commands", false)                         \
  X(Page8, Page, "MultiPage1", 0, 0, 0, 0, "Room Names", false)                              \
  X(Page9, Page, "MultiPage1", 0, 0, 0, 0, "Input Numbering", false)                         \
  /* Page1: board setup */                                                                  \
  X(Label101, Label, "Page1", 12, 16, 124, 22, "Hardware Type", true)                      \
  X(ComboBox48, ComboBox, "Page1", 140, 14, 260, 24, "", true)                              \
  X(Label102, Label, "Page1", 12, 48, 124, 22, "Operating Mode", true)                     \
  X(ComboBox1, ComboBox, "Page1", 140, 46, 260, 24, "", true)                               \
  X(Label103, Label, "Page1", 12, 80, 124, 22, "Master / Slave", true)                     \
  X(ComboBox2, ComboBox, "Page1", 140, 78, 260, 24, "", true)                               \
  X(Label23, Label, "Page1", 12, 112, 124, 22, "Slave ID", false)                          \
  X(ComboBox25, ComboBox, "Page1", 140, 110, 100, 24, "", false)                            \
  X(Label104, Label, "Page1", 12, 144, 124, 22, "Input Action", true)                      \
  X(ComboBox6, ComboBox, "Page1", 140, 142, 260, 24, "", true)                              \
  X(Label162, Label, "Page1", 12, 176, 124, 22, "Master Inputs", false)                     \
  X(ComboBox64, ComboBox, "Page1", 140, 174, 260, 24, "", false)                            \
  X(CommandButton4, CommandButton, "Page1", 12, 212, 200, 30, "Confirm Board Setup", true) \
  X(Label105, Label, "Page1", 12, 252, 200, 22, "Board Setup Summary", true)               \
  X(TextBox5, TextBox, "Page1", 12, 274, 378, 150, "", true)                                \
  X(Frame29, Frame, "Page1", 410, 10, 280, 130, "Input Scan", false)                        \
  X(OptionButton4, OptionButton, "Frame29", 12, 22, 250, 22, "Input Scan Enabled", true)   \
  X(OptionButton6, OptionButton, "Frame29", 12, 46, 250, 22, "Input Scan Disabled", true)  \
  X(Label67, Label, "Frame29", 12, 82, 100, 22, "Refresh Rate", false)                      \
  X(ComboBox55, ComboBox, "Frame29", 116, 80, 150, 24, "", false)                           \
  X(Frame31, Frame, "Page1", 410, 150, 280, 110, "Board Options", false)                    \
  X(OptionButton7, OptionButton, "Frame31", 12, 22, 250, 22, "Option 1", true)             \
  X(OptionButton8, OptionButton, "Frame31", 12, 46, 250, 22, "Option 2", true)             \
  X(OptionButton9, OptionButton, "Frame31", 12, 70, 250, 22, "Options 1 And 2", true)      \
  X(Frame38, Frame, "Page1", 410, 270, 280, 80, "Room Combine Input Scan", false)           \
  X(OptionButton1, OptionButton, "Frame38", 12, 22, 250, 22, "Scan Inputs", true)          \
  X(OptionButton2, OptionButton, "Frame38", 12, 46, 250, 22, "Do Not Scan Inputs", true)   \
  X(Frame28, Frame, "Page1", 710, 10, 270, 250, "Master Inputs", false)                     \
  X(ComboBox65, ComboBox, "Frame28", 12, 24, 240, 24, "", true)                             \
  X(ComboBox112, ComboBox, "Frame28", 12, 56, 240, 24, "", true)                            \
  X(CommandButton113, CommandButton, "Frame28", 12, 88, 240, 28, "Set Master Input", true)  \
  X(ListBox102, ListBox, "Frame28", 12, 124, 240, 116, "", true)                            \
  X(Frame26, Frame, "Page1", 710, 270, 270, 80, "Master Input Options", false)              \
  X(Frame36, Frame, "Page1", 710, 360, 270, 80, "Master Input Settings", false)             \
  X(Frame21, Frame, "Page1", 12, 440, 480, 220, "Job Files", true)                          \
  X(Label142, Label, "Frame21", 12, 26, 100, 22, "Job File (.txt)", true)                  \
  X(TextBox101, TextBox, "Frame21", 116, 24, 256, 24, "", true)                             \
  X(CommandButton26, CommandButton, "Frame21", 380, 22, 88, 28, "Save Job", true)          \
  X(Label143, Label, "Frame21", 12, 60, 100, 22, "Folder", true)                           \
  X(TextBox102, TextBox, "Frame21", 116, 58, 256, 24, "", true)                             \
  X(CommandButton101, CommandButton, "Frame21", 380, 56, 88, 28, "List Files", true)       \
  X(ListBox11, ListBox, "Frame21", 12, 92, 360, 90, "", true)                               \
  X(CommandButton102, CommandButton, "Frame21", 380, 92, 88, 28, "Open Job", true)         \
  X(Label144, Label, "Frame21", 12, 188, 456, 22, "", true)                                 \
  X(Frame23, Frame, "Page1", 510, 440, 470, 220, "Upload To RQC", true)                     \
  X(Label106, Label, "Frame23", 12, 26, 160, 22, "Target Station NetID", true)             \
  X(ComboBox50, ComboBox, "Frame23", 180, 24, 120, 24, "", true)                            \
  X(Label170, Label, "Frame23", 12, 58, 160, 22, "RQC IP Address", true)                   \
  X(TextBox7, TextBox, "Frame23", 180, 56, 270, 24, "", true)                               \
  X(CommandButton27, CommandButton, "Frame23", 12, 92, 120, 30, "Up Load", true)           \
  X(Label60, Label, "Frame23", 144, 96, 306, 22, "Click On File Name To UpLoad", true)      \
  X(Label171, Label, "Frame23", 12, 134, 160, 22, "Log File", true)                        \
  X(Label62, Label, "Frame23", 12, 158, 438, 44, "", true)                                  \
  /* Page2: channel emulation */                                                            \
  X(Label107, Label, "Page2", 12, 16, 120, 22, "Input", true)                              \
  X(ComboBox26, ComboBox, "Page2", 140, 14, 160, 24, "", true)                              \
  X(Label108, Label, "Page2", 12, 48, 120, 22, "Fade Rate One", true)                      \
  X(ComboBox27, ComboBox, "Page2", 140, 46, 160, 24, "", true)                              \
  X(Label109, Label, "Page2", 320, 48, 120, 22, "Fade Rate Two", true)                     \
  X(ComboBox49, ComboBox, "Page2", 450, 46, 160, 24, "", true)                              \
  X(Label110, Label, "Page2", 12, 80, 120, 22, "From Channel", true)                       \
  X(ComboBox45, ComboBox, "Page2", 140, 78, 160, 24, "", true)                              \
  X(Label111, Label, "Page2", 320, 80, 120, 22, "To Channel", true)                        \
  X(ComboBox46, ComboBox, "Page2", 450, 78, 160, 24, "", true)                              \
  X(Label112, Label, "Page2", 12, 112, 120, 22, "Level One", true)                         \
  X(ComboBox28, ComboBox, "Page2", 140, 110, 160, 24, "", true)                             \
  X(Label113, Label, "Page2", 320, 112, 120, 22, "Level Two", true)                        \
  X(ComboBox47, ComboBox, "Page2", 450, 110, 160, 24, "", true)                             \
  X(CommandButton19, CommandButton, "Page2", 650, 14, 170, 30, "Add Channels", true)       \
  X(CommandButton23, CommandButton, "Page2", 650, 50, 170, 30, "Action Two Level", true)   \
  X(CommandButton6, CommandButton, "Page2", 650, 86, 170, 30, "Delete Channel", true)      \
  X(Label42, Label, "Page2", 12, 150, 300, 22, "Input: ", true)                             \
  X(Label43, Label, "Page2", 12, 174, 300, 22, "Fade Rate: ", true)                         \
  X(ListBox8, ListBox, "Page2", 12, 200, 300, 430, "", true)                                \
  X(Label45, Label, "Page2", 330, 150, 300, 22, "Input: ", true)                            \
  X(Label51, Label, "Page2", 330, 174, 300, 22, "Fade Rate: ", true)                        \
  X(ListBox9, ListBox, "Page2", 330, 200, 300, 430, "", true)                               \
  /* Page3: room link, group B */                                                           \
  X(Label114, Label, "Page3", 12, 16, 120, 22, "Input", true)                              \
  X(ComboBox7, ComboBox, "Page3", 140, 14, 160, 24, "", true)                               \
  X(Label115, Label, "Page3", 12, 48, 120, 22, "First Room", true)                         \
  X(ComboBox8, ComboBox, "Page3", 140, 46, 160, 24, "", true)                               \
  X(Label116, Label, "Page3", 12, 80, 120, 22, "Second Room", true)                        \
  X(ComboBox9, ComboBox, "Page3", 140, 78, 160, 24, "", true)                               \
  X(CommandButton2, CommandButton, "Page3", 320, 14, 140, 30, "Link Rooms", true)          \
  X(CommandButton18, CommandButton, "Page3", 320, 50, 140, 30, "Delete Link", true)        \
  X(ListBox4, ListBox, "Page3", 12, 120, 450, 500, "", true)                                \
  /* Page4: room combine, with room link group C */                                         \
  X(Label117, Label, "Page4", 12, 16, 120, 22, "Room", true)                               \
  X(ComboBox36, ComboBox, "Page4", 140, 14, 160, 24, "", true)                              \
  X(Label118, Label, "Page4", 12, 48, 120, 22, "Group", true)                              \
  X(ComboBox37, ComboBox, "Page4", 140, 46, 160, 24, "", true)                              \
  X(Label119, Label, "Page4", 12, 80, 120, 22, "Channel", true)                            \
  X(ComboBox38, ComboBox, "Page4", 140, 78, 160, 24, "", true)                              \
  X(CommandButton11, CommandButton, "Page4", 320, 14, 180, 28, "Add Channel", true)        \
  X(CommandButton12, CommandButton, "Page4", 320, 48, 180, 28, "Delete Channel", true)     \
  X(CommandButton9, CommandButton, "Page4", 520, 350, 150, 28, "View By Room", true)       \
  X(CommandButton10, CommandButton, "Page4", 680, 350, 150, 28, "View By Group", true)     \
  X(CommandButton30, CommandButton, "Page4", 840, 350, 140, 28, "View All", true)          \
  X(CommandButton40, CommandButton, "Page4", 520, 390, 150, 28, "Delete Room", true)       \
  X(CommandButton41, CommandButton, "Page4", 680, 390, 150, 28, "Delete Group", true)      \
  X(Label38, Label, "Page4", 12, 116, 300, 22, "", true)                                    \
  X(ListBox1, ListBox, "Page4", 12, 142, 490, 490, "", true)                                \
  X(Frame101, Frame, "Page4", 520, 10, 460, 330, "Room Links", true)                        \
  X(Label120, Label, "Frame101", 12, 26, 104, 22, "Input", true)                           \
  X(ComboBox30, ComboBox, "Frame101", 120, 24, 160, 24, "", true)                           \
  X(Label121, Label, "Frame101", 12, 58, 104, 22, "First Room", true)                      \
  X(ComboBox31, ComboBox, "Frame101", 120, 56, 160, 24, "", true)                           \
  X(Label122, Label, "Frame101", 12, 90, 104, 22, "Second Room", true)                     \
  X(ComboBox32, ComboBox, "Frame101", 120, 88, 160, 24, "", true)                           \
  X(CommandButton7, CommandButton, "Frame101", 300, 22, 140, 28, "Link Rooms", true)       \
  X(CommandButton20, CommandButton, "Frame101", 300, 56, 140, 28, "Delete Link", true)     \
  X(ListBox2, ListBox, "Frame101", 12, 124, 436, 190, "", true)                             \
  /* Page5: preset emulation */                                                             \
  X(Label123, Label, "Page5", 12, 16, 120, 22, "Input", true)                              \
  X(ComboBox42, ComboBox, "Page5", 140, 14, 160, 24, "", true)                              \
  X(Label124, Label, "Page5", 12, 48, 120, 22, "Station Type", true)                       \
  X(ComboBox39, ComboBox, "Page5", 140, 46, 160, 24, "", true)                              \
  X(Label125, Label, "Page5", 12, 80, 120, 22, "NetID", true)                              \
  X(ComboBox41, ComboBox, "Page5", 140, 78, 160, 24, "", true)                              \
  X(Label126, Label, "Page5", 12, 112, 120, 22, "Action", true)                            \
  X(ComboBox40, ComboBox, "Page5", 140, 110, 160, 24, "", true)                             \
  X(Label127, Label, "Page5", 12, 144, 120, 22, "Personality", true)                       \
  X(ComboBox44, ComboBox, "Page5", 140, 142, 160, 24, "", true)                             \
  X(CommandButton17, CommandButton, "Page5", 12, 180, 160, 30, "Show Entry", true)         \
  X(CommandButton1, CommandButton, "Page5", 340, 14, 200, 30, "Add To KX Input", true)    \
  X(CommandButton24, CommandButton, "Page5", 340, 50, 200, 30, "Add To Pellam Input", true) \
  X(Label41, Label, "Page5", 12, 226, 470, 22, "KX Input: ", true)                          \
  X(ListBox5, ListBox, "Page5", 12, 250, 470, 380, "", true)                                \
  X(Label151, Label, "Page5", 500, 226, 470, 22, "KX Input: ", true)                        \
  X(ListBox10, ListBox, "Page5", 500, 250, 470, 380, "", true)                              \
  /* Page6: station link, station personalities and room link group A */                   \
  X(Label128, Label, "Page6", 12, 16, 120, 22, "Station Type", true)                       \
  X(ComboBox34, ComboBox, "Page6", 140, 14, 160, 24, "", true)                              \
  X(Label129, Label, "Page6", 12, 48, 120, 22, "NetID", true)                              \
  X(ComboBox35, ComboBox, "Page6", 140, 46, 160, 24, "", true)                              \
  X(Label130, Label, "Page6", 12, 80, 120, 22, "Room", true)                               \
  X(ComboBox33, ComboBox, "Page6", 140, 78, 160, 24, "", true)                              \
  X(CommandButton8, CommandButton, "Page6", 12, 116, 140, 30, "Add Station", true)          \
  X(CommandButton21, CommandButton, "Page6", 160, 116, 140, 30, "Delete NetID", true)       \
  X(ListBox3, ListBox, "Page6", 12, 200, 300, 430, "", true)                                \
  X(Frame102, Frame, "Page6", 330, 10, 650, 320, "Station Personalities", true)             \
  X(Label131, Label, "Frame102", 12, 26, 110, 22, "Series", true)                          \
  X(ComboBox17, ComboBox, "Frame102", 130, 24, 180, 24, "", true)                           \
  X(Label132, Label, "Frame102", 12, 58, 110, 22, "Personality", true)                     \
  X(ComboBox18, ComboBox, "Frame102", 130, 56, 180, 24, "", true)                           \
  X(Label133, Label, "Frame102", 12, 90, 110, 22, "NetID", true)                           \
  X(ComboBox19, ComboBox, "Frame102", 130, 88, 180, 24, "", true)                           \
  X(Label134, Label, "Frame102", 12, 122, 110, 22, "Room", true)                           \
  X(ComboBox43, ComboBox, "Frame102", 130, 120, 180, 24, "", true)                          \
  X(CommandButton14, CommandButton, "Frame102", 350, 22, 150, 28, "Add Personality", true)  \
  X(CommandButton15, CommandButton, "Frame102", 350, 56, 150, 28, "Delete NetID", true)    \
  X(ListBox7, ListBox, "Frame102", 12, 156, 626, 152, "", true)                             \
  X(Frame103, Frame, "Page6", 330, 340, 650, 320, "Room Links", true)                        \
  X(Label135, Label, "Frame103", 12, 26, 110, 22, "Input", true)                           \
  X(ComboBox20, ComboBox, "Frame103", 130, 24, 180, 24, "", true)                           \
  X(Label136, Label, "Frame103", 12, 58, 110, 22, "First Room", true)                      \
  X(ComboBox22, ComboBox, "Frame103", 130, 56, 180, 24, "", true)                           \
  X(Label137, Label, "Frame103", 12, 90, 110, 22, "Second Room", true)                     \
  X(ComboBox23, ComboBox, "Frame103", 130, 88, 180, 24, "", true)                           \
  X(CommandButton3, CommandButton, "Frame103", 350, 22, 150, 28, "Link Rooms", true)       \
  X(CommandButton16, CommandButton, "Frame103", 350, 56, 150, 28, "Delete Link", true)    \
  X(ListBox6, ListBox, "Frame103", 12, 124, 626, 184, "", true)                             \
  /* Page9: input numbering */                                                              \
  X(Label160, Label, "Page9", 12, 16, 120, 22, "Input", true)                               \
  X(ComboBox110, ComboBox, "Page9", 140, 14, 160, 24, "", true)                             \
  X(Label161, Label, "Page9", 12, 48, 120, 22, "Room Number", true)                         \
  X(ComboBox111, ComboBox, "Page9", 140, 46, 160, 24, "", true)                             \
  X(CommandButton110, CommandButton, "Page9", 320, 14, 150, 30, "Number Input", true)       \
  X(CommandButton111, CommandButton, "Page9", 320, 50, 150, 30, "Delete Input", true)       \
  X(CommandButton112, CommandButton, "Page9", 320, 86, 150, 30, "Clear All", true)          \
  X(ListBox101, ListBox, "Page9", 12, 130, 300, 430, "", true)                              \
  /* Page8: room and group names */                                                         \
  X(Label145, Label, "Page8", 12, 16, 160, 22, "Enter Room Label", true)                   \
  X(TextBox103, TextBox, "Page8", 180, 14, 250, 24, "", true)                               \
  X(Label146, Label, "Page8", 12, 48, 160, 22, "Room", true)                               \
  X(ComboBox101, ComboBox, "Page8", 180, 46, 100, 24, "", true)                             \
  X(CommandButton33, CommandButton, "Page8", 300, 46, 130, 24, "Label Room", true)         \
  X(Label147, Label, "Page8", 12, 80, 160, 22, "Group", true)                              \
  X(ComboBox102, ComboBox, "Page8", 180, 78, 100, 24, "", true)                             \
  X(CommandButton35, CommandButton, "Page8", 300, 78, 130, 24, "Label Group", true)        \
  X(ListBox12, ListBox, "Page8", 12, 120, 300, 300, "", true)                               \
  X(ComboBox58, ComboBox, "Page8", 330, 120, 300, 24, "", true)                             \
  X(Label148, Label, "Page8", 12, 430, 150, 22, "Room", true)                               \
  X(ListBox13, ListBox, "Page8", 12, 454, 150, 166, "", true)                               \
  X(Label149, Label, "Page8", 180, 430, 150, 22, "Room Value", true)                        \
  X(ComboBox61, ComboBox, "Page8", 180, 454, 150, 24, "", true)                             \
  X(Label150, Label, "Page8", 350, 430, 200, 22, "Room Name", true)                         \
  X(TextBox104, TextBox, "Page8", 350, 454, 200, 24, "", true)                              \
  X(CommandButton37, CommandButton, "Page8", 350, 488, 150, 28, "Store Room Name", true)   \
  /* Page7: remote LED and button commands */                                               \
  X(Label138, Label, "Page7", 12, 16, 120, 22, "NetID", true)                              \
  X(ComboBox68, ComboBox, "Page7", 140, 14, 160, 24, "", true)                              \
  X(Label139, Label, "Page7", 12, 48, 120, 22, "Input", true)                              \
  X(ComboBox69, ComboBox, "Page7", 140, 46, 160, 24, "", true)                              \
  X(Label140, Label, "Page7", 12, 80, 120, 22, "Page", true)                               \
  X(ComboBox70, ComboBox, "Page7", 140, 78, 160, 24, "", true)                              \
  X(Label141, Label, "Page7", 12, 112, 120, 22, "LED / Button", true)                      \
  X(ListBox17, ListBox, "Page7", 140, 110, 160, 160, "", true)                             \
  X(Frame104, Frame, "Page7", 330, 10, 260, 104, "Remote Mode", true)                      \
  X(OptionButton12, OptionButton, "Frame104", 12, 22, 236, 22, "Remote To LED's", true)    \
  X(OptionButton13, OptionButton, "Frame104", 12, 46, 236, 22, "Remote To Buttons", true)  \
  X(OptionButton14, OptionButton, "Frame104", 12, 70, 236, 22, "Remote To Disabled", true) \
  X(CommandButton38, CommandButton, "Page7", 330, 126, 150, 30, "Add Command", true)       \
  X(Label70, Label, "Page7", 12, 290, 400, 22, "", true)                                   \
  X(ListBox19, ListBox, "Page7", 12, 314, 400, 320, "", true)
