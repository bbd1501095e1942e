#include "platform/windows/only_copy.h"

#include "platform/windows/utf8.h"

namespace onze {

namespace {

constexpr ULONGLONG kPatienceMs = 60'000;
constexpr DWORD kPauseMs = 20;

// Where all users write into one folder they share one copy, else each session has its own.
std::wstring NameFor(const DataFolders& folders) {
    return (TakesFiles(folders.datas) ? L"Global\\OnzeTables-" : L"Local\\OnzeTables-") + ToWide(folders.key);
}

void Show(HWND window) {
    if (IsIconic(window)) ShowWindowAsync(window, SW_RESTORE);
    SetForegroundWindow(window);
}

}  // namespace

OnlyCopy::OnlyCopy(const DataFolders& folders)
    : name_(NameFor(folders)), mutex_(CreateMutexW(nullptr, FALSE, name_.c_str())) {}

OnlyCopy::~OnlyCopy() {
    if (!mutex_) return;
    if (first_) ReleaseMutex(mutex_);
    CloseHandle(mutex_);
}

OtherCopy OnlyCopy::Start() {
    if (!mutex_) return OtherCopy::kOfAnotherUser;
    for (const ULONGLONG end = GetTickCount64() + kPatienceMs; GetTickCount64() < end;) {
        const DWORD state = WaitForSingleObject(mutex_, kPauseMs);
        first_ = state == WAIT_OBJECT_0 || state == WAIT_ABANDONED;
        if (first_) return OtherCopy::kNone;
        if (const HWND window = WindowOfOther()) {
            Show(window);
            return OtherCopy::kShown;
        }
    }
    return OtherCopy::kSilent;
}

HWND OnlyCopy::WindowOfOther() const {
    HWND window = nullptr;
    while ((window = FindWindowExW(nullptr, window, L"OnzeTables", nullptr))) {
        if (IsWindowVisible(window) && GetPropW(window, name_.c_str())) return window;
    }
    return nullptr;
}

}  // namespace onze
