// Starts the program in the desktop that this runs in, and tells line by line what becomes of the taskbar and
// of the desktop's size, what the program reports, and how it ends. A line on the standard input kills the
// program.
#include <windows.h>

#include <cstdio>
#include <iostream>
#include <string>
#include <thread>

namespace {

struct Desk {
    bool taskbar;
    int width;
    int height;

    friend bool operator==(const Desk&, const Desk&) = default;
};

Desk Look() {
    const HWND taskbar = FindWindowA("Shell_TrayWnd", nullptr);
    return {taskbar && IsWindowVisible(taskbar), GetSystemMetrics(SM_CXSCREEN),
            GetSystemMetrics(SM_CYSCREEN)};
}

// The desk as it was at one moment: a look that finds it changing is taken again.
Desk LookSharply() {
    Desk desk = Look();
    for (Desk again = Look(); !(again == desk); again = Look()) desk = again;
    return desk;
}

void Tell(const std::string& line) {
    std::puts(line.c_str());
    std::fflush(stdout);
}

void TellChange(Desk& last) {
    const Desk desk = LookSharply();
    if (desk == last) return;
    last = desk;
    Tell("desk " + std::to_string(desk.width) + "x" + std::to_string(desk.height) +
         (desk.taskbar ? " with taskbar" : " without taskbar"));
}

std::string Utf8(const wchar_t* text) {
    char utf8[2048];
    WideCharToMultiByte(CP_UTF8, 0, text, -1, utf8, sizeof utf8, nullptr, nullptr);
    return utf8;
}

// A message box shows its text in a static control.
BOOL CALLBACK TellText(HWND control, LPARAM) {
    wchar_t text[1024] = L"";
    wchar_t name[16] = L"";
    GetClassNameW(control, name, 16);
    if (lstrcmpiW(name, L"Static") == 0 && GetWindowTextW(control, text, 1024) > 0)
        Tell("report " + Utf8(text));
    return TRUE;
}

BOOL CALLBACK PutMessageAway(HWND window, LPARAM process) {
    DWORD owner = 0;
    wchar_t name[16] = L"";
    GetWindowThreadProcessId(window, &owner);
    GetClassNameW(window, name, 16);
    if (owner == static_cast<DWORD>(process) && lstrcmpW(name, L"#32770") == 0 && IsWindowVisible(window)) {
        EnumChildWindows(window, TellText, 0);
        SendMessageW(window, WM_COMMAND, IDOK, 0);
    }
    return TRUE;
}

}  // namespace

int main() {
    Desk desk{};
    while (!Look().taskbar) Sleep(10);
    TellChange(desk);

    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION program{};
    wchar_t command[] = L"onze-tables.exe";
    if (!CreateProcessW(nullptr, command, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &program))
        return 1;
    std::thread([&program] {
        if (std::string line; std::getline(std::cin, line)) TerminateProcess(program.hProcess, 99);
    }).detach();

    while (WaitForSingleObject(program.hProcess, 1) == WAIT_TIMEOUT) {
        TellChange(desk);
        EnumWindows(PutMessageAway, static_cast<LPARAM>(program.dwProcessId));
    }
    Sleep(300);
    TellChange(desk);
    DWORD status = 0;
    GetExitCodeProcess(program.hProcess, &status);
    Tell("exit " + std::to_string(status));
    std::_Exit(0);
}
