// Times the form's first painted frame under Wine against a bare window with one tab control
// and one combo box, made in the same run, and reads the working set after every page of a
// job was shown:
//   pellam_form_bench paint RUNS        medians of RUNS of each, alternating
//   pellam_form_bench marked RUNS       the same, each first paint between lines "mark form" or
//                                       "mark bare" and "mark end" on the output
//   pellam_form_bench memory JOB.zpd    working set before the form, after every page shown
#include <algorithm>
#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include <windows.h>
#include <commctrl.h>
#include <oleauto.h>
#include <psapi.h>

#include "form/win_metrics.h"
#include "pellam.h"
#include "wide_text.h"

namespace {

using Clock = std::chrono::steady_clock;

void say(const std::string& line) {
  const std::string text = line + "\n";
  DWORD written = 0;
  WriteFile(GetStdHandle(STD_OUTPUT_HANDLE), text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
}

void pump() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

// Shown, and every part of it painted.
double paintedAfter(HWND window, Clock::time_point start) {
  RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  GdiFlush();
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double bareDialog(const std::function<void(const char*)>& mark) {
  mark("mark bare");
  const auto start = Clock::now();
  HWND window = CreateWindowExW(WS_EX_CONTROLPARENT, L"#32770", L"bare", WS_OVERLAPPEDWINDOW, 0, 0, 1000, 700, nullptr,
                                nullptr, nullptr, nullptr);
  HFONT font = pellam::win::messageFont(pellam::win::dpiOf(window));
  HWND tabs = CreateWindowExW(0, WC_TABCONTROLW, L"", WS_CHILD | WS_VISIBLE, 0, 0, 1000, 670, window, nullptr, nullptr, nullptr);
  TCITEMW item{};
  item.mask = TCIF_TEXT;
  item.pszText = const_cast<wchar_t*>(L"Board Setup");
  SendMessageW(tabs, TCM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
  HWND combo = CreateWindowExW(0, L"COMBOBOX", L"", WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, 140, 40, 260, 300, window,
                               nullptr, nullptr, nullptr);
  SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"Channel Emulation"));
  SendMessageW(combo, CB_SETCURSEL, 0, 0);
  for (HWND w : {tabs, combo}) SendMessageW(w, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
  ShowWindow(window, SW_SHOW);
  const double ms = paintedAfter(window, start);
  mark("mark end");
  DestroyWindow(window);
  DeleteObject(font);
  pump();
  return ms;
}

double median(std::vector<double> v) {
  std::sort(v.begin(), v.end());
  return v[v.size() / 2];
}

std::string fixed(double value) {
  char text[32];
  snprintf(text, sizeof text, "%.1f", value);
  return text;
}

struct Host {
  Host() {
    CoInitialize(nullptr);
    own = CreateWindowExW(0, L"STATIC", L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200, 80, nullptr, nullptr,
                          nullptr, nullptr);
    CoCreateInstance(CLSID_Class1, nullptr, CLSCTX_INPROC_SERVER, IID__Class1, reinterpret_cast<void**>(&o));
    VariantInit(&empty);
  }
  _Class1* o = nullptr;
  HWND own = nullptr;
  VARIANT empty;
};

// `marks` prints a line before and after each first paint, for a tracer to count what lies between.
int paint(int runs, bool marks) {
  Host host;
  if (!host.o) return 1;
  host.o->Initailize_Pellam_Variables_And_Form(&host.empty);
  host.o->New_KX_Job_Display_Board_SetUp(&host.empty);
  std::vector<double> form, bare, loaded;
  const std::function<void(const char*)> mark = [&](const char* line) {
    if (marks) say(line);
  };
  for (int run = 0; run < runs; ++run) {
    mark("mark form");
    const auto start = Clock::now();
    host.o->Load_User_Form(&host.empty);
    loaded.push_back(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
    form.push_back(paintedAfter(FindWindowW(L"PellamForm", nullptr), start));
    mark("mark end");
    host.o->Unload_Pellam_Form(&host.empty);
    pump();
    bare.push_back(bareDialog(mark));
  }
  say("Load_User_Form to first paint: median " + fixed(median(form)) + " ms; bare tab and combo window: median " +
      fixed(median(bare)) + " ms; ratio " + fixed(median(form) / median(bare)) + " (" + std::to_string(runs) + " runs each); the window made and drawn by the return of Load_User_Form: median " + fixed(median(loaded)) + " ms");
  return 0;
}

double workingSetMb() {
  PROCESS_MEMORY_COUNTERS counters{};
  GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
  return static_cast<double>(counters.WorkingSetSize) / (1024.0 * 1024.0);
}

int memory(const std::wstring& job) {
  Host host;
  if (!host.o) return 1;
  const double before = workingSetMb();
  BSTR path = pellam::win::newBstr(pellam::win::utf8(std::wstring_view(job)));
  host.o->Initailize_Pellam_Variables_And_Form(&host.empty);
  host.o->ReadZPD_ImageFile(&path, &host.empty);
  SysFreeString(path);
  const double opened = workingSetMb();
  host.o->Load_User_Form(&host.empty);
  HWND form = FindWindowW(L"PellamForm", nullptr);
  HWND tabs = FindWindowExW(form, nullptr, WC_TABCONTROLW, nullptr);
  const auto count = static_cast<int>(SendMessageW(tabs, TCM_GETITEMCOUNT, 0, 0));
  for (int tab = 0; tab < count; ++tab) {
    SendMessageW(tabs, TCM_SETCURSEL, static_cast<WPARAM>(tab), 0);
    NMHDR click{tabs, static_cast<UINT_PTR>(GetDlgCtrlID(tabs)), TCN_SELCHANGE};
    SendMessageW(form, WM_NOTIFY, click.idFrom, reinterpret_cast<LPARAM>(&click));
    pump();
    RedrawWindow(form, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  }
  say("working set: " + fixed(before) + " MB with the DLL loaded, " + fixed(opened) + " MB with the job open, " +
      fixed(workingSetMb()) + " MB after all " + std::to_string(count) + " pages were shown");
  return 0;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  const std::wstring mode = argc > 1 ? argv[1] : L"";
  if (mode == L"paint" || mode == L"marked") return paint(argc > 2 ? _wtoi(argv[2]) : 15, mode == L"marked");
  if (mode == L"memory" && argc == 3) return memory(argv[2]);
  say("usage: pellam_form_bench paint|marked [RUNS] | memory JOB.zpd");
  return 2;
}
