// Drives the form's real window as a person does, by window messages, and takes its pictures:
//   pellam_form_driver pages OUT NAME.zpd...   Pellam.dll in this process: each job opened and
//                                              shown, a picture of every page, OUT\NAME-N.bmp
//   pellam_form_driver setup-pages OUT NAME    the same of the running pellam-setup.exe
//   pellam_form_driver drive SCRIPT FOLDER     a form script's steps through the controls, in FOLDER
// A control's window id is 1000 + its row in the control table. Lines go to standard output.
#include <cstdio>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include <windows.h>
#include <commctrl.h>
#include <oleauto.h>

#include "component/script/script_tokens.h"
#include "pellam.h"
#include "ui/user_form_table.h"
#include "wide_text.h"

namespace {

struct Row {
  std::string_view name, kind, parent, caption;
};
constexpr Row kRows[] = {
#define PELLAM_ROW(name, kind, parent, left, top, width, height, caption, visible) {#name, #kind, parent, caption},
    PELLAM_USERFORM1_CONTROLS(PELLAM_ROW)
#undef PELLAM_ROW
};

int rowOf(std::string_view name) {
  for (int i = 0; i < static_cast<int>(std::size(kRows)); ++i)
    if (kRows[i].name == name) return i;
  return -1;
}

void say(const std::string& line) {
  const std::string text = line + "\n";
  DWORD written = 0;
  WriteFile(GetStdHandle(STD_OUTPUT_HANDLE), text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
}

[[noreturn]] void fail(const std::string& why) {
  say("error: " + why);
  ExitProcess(1);
}

HWND findForm(DWORD waitMs) {
  for (DWORD waited = 0;; waited += 100) {
    if (HWND form = FindWindowW(L"PellamForm", nullptr); form && IsWindowVisible(form)) return form;
    if (waited >= waitMs) fail("no form window");
    Sleep(100);
  }
}

struct Search {
  int id;
  HWND found;
};
BOOL CALLBACK byId(HWND window, LPARAM search) {
  auto* s = reinterpret_cast<Search*>(search);
  if (GetDlgCtrlID(window) != s->id) return TRUE;
  s->found = window;
  return FALSE;
}
HWND controlWindow(HWND form, std::string_view name) {
  Search s{1000 + rowOf(name), nullptr};
  EnumChildWindows(form, byId, reinterpret_cast<LPARAM>(&s));
  return s.found;
}

void pump() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

// Lets the form's window handle what it was sent and draw it, in front. An in-process form is
// drawn, then its queue runs again: Wine puts what a window drew on the screen from there.
void settle(HWND form, bool inProcess) {
  SetForegroundWindow(form);
  if (inProcess) {
    pump();
    RedrawWindow(form, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    GdiFlush();
    Sleep(100);
    pump();
  } else {
    DWORD_PTR ignored = 0;
    SendMessageTimeoutW(form, WM_NULL, 0, 0, SMTO_BLOCK, 5000, &ignored);
    Sleep(400);
  }
}

// The window as the screen shows it, as a 24-bit BMP.
void capture(HWND form, const std::wstring& path) {
  RECT r;
  GetWindowRect(form, &r);
  const int w = r.right - r.left, h = r.bottom - r.top;
  HDC screen = GetDC(nullptr);
  HDC memory = CreateCompatibleDC(screen);
  BITMAPINFO info{};
  info.bmiHeader = {sizeof(BITMAPINFOHEADER), w, h, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  HBITMAP bitmap = CreateDIBSection(screen, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  HGDIOBJ old = SelectObject(memory, bitmap);
  BitBlt(memory, 0, 0, w, h, screen, r.left, r.top, SRCCOPY);
  SelectObject(memory, old);
  const DWORD stride = static_cast<DWORD>((w * 3 + 3) & ~3), size = stride * static_cast<DWORD>(h);
  BITMAPFILEHEADER file{0x4D42, static_cast<DWORD>(sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER) + size), 0, 0,
                        sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER)};
  std::ofstream out(path.c_str(), std::ios::binary);
  out.write(reinterpret_cast<const char*>(&file), sizeof file);
  out.write(reinterpret_cast<const char*>(&info.bmiHeader), sizeof info.bmiHeader);
  out.write(static_cast<const char*>(bits), size);
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);
  say("picture " + pellam::win::utf8(path) + " " + std::to_string(w) + "x" + std::to_string(h));
}

std::wstring tabCaption(HWND tabs, int tab) {
  wchar_t text[64]{};
  TCITEMW item{};
  item.mask = TCIF_TEXT;
  item.pszText = text;
  item.cchTextMax = 64;
  SendMessageW(tabs, TCM_GETITEMW, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&item));
  return text;
}

// Every tab from the first, stepped with the arrow key as a person does with the tabs focused.
void everyPage(HWND form, const std::wstring& prefix, bool inProcess) {
  HWND tabs = FindWindowExW(form, nullptr, WC_TABCONTROLW, nullptr);
  if (!tabs) fail("no tabs");
  settle(form, inProcess);
  const auto count = static_cast<int>(SendMessageW(tabs, TCM_GETITEMCOUNT, 0, 0));
  for (int tab = 0; tab < count; ++tab) PostMessageW(tabs, WM_KEYDOWN, VK_LEFT, 0);
  for (int tab = 0; tab < count; ++tab) {
    if (tab > 0) PostMessageW(tabs, WM_KEYDOWN, VK_RIGHT, 0);
    settle(form, inProcess);
    const auto shown = static_cast<int>(SendMessageW(tabs, TCM_GETCURSEL, 0, 0));
    if (shown != tab) {
      std::string captions;
      for (int i = 0; i < count; ++i) captions += " [" + pellam::win::utf8(tabCaption(tabs, i)) + "]";
      capture(form, prefix + L"-failed.bmp");
      fail("tab " + std::to_string(tab) + " did not show, tab " + std::to_string(shown) + " did:" + captions);
    }
    capture(form, prefix + L"-" + std::to_wstring(tab + 1) + L".bmp");
  }
}

struct Host {
  Host() {
    CoInitialize(nullptr);
    // A window of its own: the host runs a message loop, so the form comes modeless.
    own = CreateWindowExW(0, L"STATIC", L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200, 80, nullptr, nullptr,
                          nullptr, nullptr);
    if (FAILED(CoCreateInstance(CLSID_Class1, nullptr, CLSCTX_INPROC_SERVER, IID__Class1, reinterpret_cast<void**>(&o))))
      fail("cannot create PellamSetup.Class1");
    VariantInit(&empty);
  }
  ~Host() {
    o->Release();
    DestroyWindow(own);
    CoUninitialize();
  }
  void path(HRESULT(STDMETHODCALLTYPE _Class1::*member)(BSTR*, VARIANT*), const std::string& file) {
    BSTR text = pellam::win::newBstr(file);
    const HRESULT hr = (o->*member)(&text, &empty);
    SysFreeString(text);
    if (FAILED(hr)) fail("member failed: " + file);
  }
  _Class1* o = nullptr;
  HWND own = nullptr;
  VARIANT empty;
};

int pages(const std::wstring& out, int count, wchar_t** jobs) {
  Host host;
  RECT work;
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
  say("work area " + std::to_string(work.right - work.left) + "x" + std::to_string(work.bottom - work.top));
  for (int i = 0; i < count; ++i) {
    const std::string zpd = pellam::win::utf8(std::wstring_view(jobs[i]));
    BSTR text = pellam::win::newBstr(zpd);
    short type = 0;
    host.o->Initailize_Pellam_Variables_And_Form(&host.empty);
    host.o->Product_Type(&text, &type);
    SysFreeString(text);
    if (type != 1) fail("not a job: " + zpd);
    host.path(&_Class1::ReadZPD_ImageFile, zpd);
    host.o->Load_User_Form(&host.empty);
    std::wstring name(jobs[i]);
    name = name.substr(name.find_last_of(L"\\/") + 1);
    name = name.substr(0, name.find(L'.'));
    everyPage(findForm(0), out + L"\\dll-" + name, true);
  }
  host.o->Unload_Pellam_Form(&host.empty);
  if (FindWindowW(L"PellamForm", nullptr)) fail("the form's window outlived Unload_Pellam_Form");
  say("DONE");
  return 0;
}

// Brings a control's page to the front by its tab, as a person must before using it.
void showPageOf(HWND form, std::string_view name) {
  std::string_view page = name;
  while (kRows[rowOf(page)].kind != "Page") page = kRows[rowOf(page)].parent;
  HWND tabs = FindWindowExW(form, nullptr, WC_TABCONTROLW, nullptr);
  const std::wstring caption = pellam::win::wide(kRows[rowOf(page)].caption);
  const auto count = static_cast<int>(SendMessageW(tabs, TCM_GETITEMCOUNT, 0, 0));
  for (int tab = 0; tab < count; ++tab) {
    if (caption != tabCaption(tabs, tab)) continue;
    SendMessageW(tabs, TCM_SETCURSEL, static_cast<WPARAM>(tab), 0);
    NMHDR click{tabs, static_cast<UINT_PTR>(GetDlgCtrlID(tabs)), TCN_SELCHANGE};
    SendMessageW(form, WM_NOTIFY, click.idFrom, reinterpret_cast<LPARAM>(&click));
    return;
  }
  fail("no tab shows the page of " + std::string(name));
}

// The control's window, on its page in front, visible and enabled as a person needs it.
HWND reach(HWND form, const std::string& name) {
  if (rowOf(name) < 0) fail("no control " + name);
  showPageOf(form, name);
  settle(form, true);
  HWND control = controlWindow(form, name);
  if (!control || !IsWindowVisible(control) || !IsWindowEnabled(control)) fail(name + " cannot be used");
  return control;
}

void selectItem(HWND control, int index) {
  wchar_t kind[32]{};
  GetClassNameW(control, kind, 32);
  const bool combo = lstrcmpiW(kind, L"ComboBox") == 0;
  SendMessageW(control, combo ? CB_SETCURSEL : LB_SETCURSEL, static_cast<WPARAM>(index), 0);
  if (static_cast<int>(SendMessageW(control, combo ? CB_GETCURSEL : LB_GETCURSEL, 0, 0)) != index)
    fail("no item " + std::to_string(index));
  const WORD code = combo ? CBN_SELCHANGE : LBN_SELCHANGE;
  SendMessageW(GetParent(control), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(control), code), reinterpret_cast<LPARAM>(control));
}

// A long text box shows its scroll bar only while a person's text is longer than the box.
void scrollBarFollowsText(HWND form) {
  HWND box = reach(form, "TextBox5");
  for (const int lines : {30, 1}) {
    std::wstring text;
    for (int line = 0; line < lines; ++line) text += L"typed\r\n";
    SendMessageW(box, EM_SETSEL, 0, -1);
    SendMessageW(box, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
    settle(form, true);
    if (((GetWindowLongW(box, GWL_STYLE) & WS_VSCROLL) != 0) != (lines > 1))
      fail("the scroll bar of TextBox5 does not follow " + std::to_string(lines) + " lines");
  }
}

// On a screen smaller than the form, the form scrolls as far as its last pixel and no further.
void scrollsToItsEnd(HWND form) {
  SetWindowPos(form, nullptr, 0, 0, 500, 400, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  HWND page = controlWindow(form, "Page1");
  for (const int bar : {SB_HORZ, SB_VERT}) {
    RECT before, after;
    GetWindowRect(page, &before);
    SendMessageW(form, bar == SB_HORZ ? WM_HSCROLL : WM_VSCROLL, SB_BOTTOM, 0);
    GetWindowRect(page, &after);
    SCROLLINFO range{};
    range.cbSize = sizeof range;
    range.fMask = SIF_RANGE | SIF_PAGE;
    GetScrollInfo(form, bar, &range);
    const LONG moved = bar == SB_HORZ ? before.left - after.left : before.top - after.top;
    if (moved <= 0 || moved != range.nMax - static_cast<LONG>(range.nPage) + 1)
      fail("the form scrolls " + std::to_string(moved) + " pixels to its end");
  }
}

int drive(const std::wstring& script, const std::wstring& folder) {
  std::ifstream in(script.c_str());
  if (!in) fail("cannot read the script");
  CreateDirectoryW(folder.c_str(), nullptr);
  SetCurrentDirectoryW(folder.c_str());
  Host host;
  HWND form = nullptr;
  std::string line;
  while (std::getline(in, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    const auto words = pellam::component::script::tokenize(line);
    if (words.empty()) continue;
    // Word n of the line; empty past its end.
    const auto argument = [&](std::size_t n) { return n < words.size() ? words[n].text : std::string(); };
    const std::string& command = words[0].text;
    if (command == "call") {
      const std::string member = argument(1);
      if (member == "Initailize_Pellam_Variables_And_Form") {
        host.o->Initailize_Pellam_Variables_And_Form(&host.empty);
      } else if (member == "New_KX_Job_Display_Board_SetUp") {
        host.o->New_KX_Job_Display_Board_SetUp(&host.empty);
        host.o->Load_User_Form(&host.empty);  // a person needs the form shown
        form = findForm(0);
      } else if (member == "Create_Pellam_Zpd") {
        host.path(&_Class1::Create_Pellam_Zpd, argument(2));
      } else {
        fail("the drive does not call " + member);
      }
    } else if (command == "select" || command == "click" || command == "text") {
      if (!form) fail("no form shown");
      const std::string name = argument(1);
      HWND control = reach(form, name);
      if (command == "select") {
        selectItem(control, std::stoi(argument(2)));
      } else if (command == "click") {
        SendMessageW(control, BM_CLICK, 0, 0);
      } else {
        // Pasted over whatever the box held: one change, as the script's one line.
        const std::wstring text = pellam::win::wide(argument(2));
        SendMessageW(control, EM_SETSEL, 0, -1);
        SendMessageW(control, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
      }
      settle(form, true);
    }
    // answer, choose and clock lines are the answers file's; show and bytes print nothing here.
  }
  if (form) {
    scrollBarFollowsText(form);
    scrollsToItsEnd(form);
  }
  say("DONE");
  return 0;
}

// The running pellam-setup.exe, from outside as a person sees it.
int setupPages(const std::wstring& out, const std::wstring& name) {
  HWND form = findForm(20000);
  everyPage(form, out + L"\\setup-" + name, false);
  PostMessageW(form, WM_CLOSE, 0, 0);
  say("DONE");
  return 0;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  const std::wstring mode = argc > 1 ? argv[1] : L"";
  if (mode == L"pages" && argc > 3) return pages(argv[2], argc - 3, argv + 3);
  if (mode == L"setup-pages" && argc == 4) return setupPages(argv[2], argv[3]);
  if (mode == L"drive" && argc == 4) return drive(argv[2], argv[3]);
  say("usage: pellam_form_driver pages OUT JOB.zpd... | setup-pages OUT NAME | drive SCRIPT FOLDER");
  return 2;
}
