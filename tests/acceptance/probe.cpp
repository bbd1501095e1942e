// Is the taskbar of the desktop that it runs in, and tells line by line what becomes of both, and what
// programs report. Lines on the standard input: "tidy" brings the desktop to rest; "hold", with "read",
// "write" or "delete", opens the file of the next line and shares it so; "let go" closes all. The input's end
// is the probe's.
#include <windows.h>

#include <cstdio>
#include <iostream>
#include <map>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace {

constexpr UINT kTidy = WM_APP;
using Programs = std::map<DWORD, HANDLE>;

void Tell(const std::string& line) {
    std::puts(line.c_str());
    std::fflush(stdout);
}

HWND MakeTaskbar() {
    constexpr const wchar_t* kClass = L"Shell_TrayWnd";
    WNDCLASSW taskbar{};
    taskbar.lpfnWndProc = DefWindowProcW;
    taskbar.lpszClassName = kClass;
    RegisterClassW(&taskbar);
    const int top = GetSystemMetrics(SM_CYSCREEN) - 30;
    return CreateWindowExW(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, kClass, L"", WS_POPUP, 0, top,
                           GetSystemMetrics(SM_CXSCREEN), 30, nullptr, nullptr, nullptr, nullptr);
}

std::string Desk(HWND taskbar) {
    return "desk " + std::to_string(GetSystemMetrics(SM_CXSCREEN)) + "x" +
           std::to_string(GetSystemMetrics(SM_CYSCREEN)) +
           (IsWindowVisible(taskbar) ? " with taskbar" : " without taskbar");
}

// A message box shows its text in a static control.
BOOL CALLBACK TellText(HWND control, LPARAM) {
    wchar_t text[1024] = L"";
    wchar_t name[16] = L"";
    GetClassNameW(control, name, 16);
    if (lstrcmpiW(name, L"Static") != 0 || GetWindowTextW(control, text, 1024) == 0) return TRUE;
    char utf8[2048];
    WideCharToMultiByte(CP_UTF8, 0, text, -1, utf8, sizeof utf8, nullptr, nullptr);
    Tell(std::string("report ") + utf8);
    return TRUE;
}

// Notes the programs that have a window or a message box, and puts message boxes away.
BOOL CALLBACK Note(HWND window, LPARAM running) {
    wchar_t name[16] = L"";
    GetClassNameW(window, name, 16);
    const bool message = lstrcmpW(name, L"#32770") == 0;
    if (!IsWindowVisible(window) || (!message && lstrcmpW(name, L"OnzeTables") != 0)) return TRUE;
    DWORD id = 0;
    GetWindowThreadProcessId(window, &id);
    HANDLE& program = (*reinterpret_cast<Programs*>(running))[id];
    if (!program) {
        program = OpenProcess(SYNCHRONIZE | PROCESS_QUERY_INFORMATION, FALSE, id);
        Tell("running " + std::to_string(id));
    }
    if (message) {
        EnumChildWindows(window, TellText, 0);
        SendMessageW(window, WM_COMMAND, IDOK, 0);
    }
    return TRUE;
}

bool TellEnd(const Programs::value_type& running) {
    const auto& [id, program] = running;
    DWORD status = 0;
    if (WaitForSingleObject(program, 0) != WAIT_OBJECT_0) return false;
    GetExitCodeProcess(program, &status);
    CloseHandle(program);
    Tell("exit " + std::to_string(id) + " " + std::to_string(status));
    return true;
}

HANDLE Hold(const std::string& how, const std::string& file) {
    wchar_t name[1024] = L"Z:";
    MultiByteToWideChar(CP_UTF8, 0, file.c_str(), -1, name + 2, 1022);
    const auto shared = [&how](const char* word) { return how.find(word) != std::string::npos; };
    const DWORD sharing = (shared("read") ? FILE_SHARE_READ : 0) | (shared("write") ? FILE_SHARE_WRITE : 0) |
                          (shared("delete") ? FILE_SHARE_DELETE : 0);
    return CreateFileW(name, GENERIC_READ, sharing, nullptr, OPEN_EXISTING, 0, nullptr);
}

void ListenTo(DWORD main_thread) {
    std::vector<HANDLE> held;
    for (std::string line; std::getline(std::cin, line);) {
        if (line == "tidy") {
            PostThreadMessageW(main_thread, kTidy, 0, 0);
            continue;
        }
        if (std::string file; line != "let go" && std::getline(std::cin, file)) {
            held.push_back(Hold(line, file));
            if (held.back() == INVALID_HANDLE_VALUE) continue;
        } else {
            for (const HANDLE file_held : std::exchange(held, {})) CloseHandle(file_held);
        }
        Tell("done");
    }
    std::_Exit(0);
}

}  // namespace

int main() {
    const HWND taskbar = MakeTaskbar();
    std::thread(ListenTo, GetCurrentThreadId()).detach();
    Programs running;
    for (std::string told;;) {
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
        for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);) {
            DispatchMessageW(&message);
            if (message.message != kTidy) continue;
            ChangeDisplaySettingsW(nullptr, 0);
            ShowWindow(taskbar, SW_SHOWNA);
            Tell("tidy");
            told.clear();
        }
        if (const std::string desk = Desk(taskbar); desk != told) Tell(told = desk);
        EnumWindows(Note, reinterpret_cast<LPARAM>(&running));
        std::erase_if(running, TellEnd);
    }
}
