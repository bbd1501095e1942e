#include <windows.h>

#include "platform/windows/host.h"
#include "platform/windows/only_copy.h"
#include "platform/windows/utf8.h"
#include "platform/windows/window.h"
#include "shell/program.h"
#include "support/random.h"

using namespace onze;

namespace {

int Report(const std::string& error) {
    DWORD written = 0;
    const std::string line = "Onze Tables : " + error + "\r\n";
    WriteFile(GetStdHandle(STD_ERROR_HANDLE), line.data(), static_cast<DWORD>(line.size()), &written,
              nullptr);
    MessageBoxW(nullptr, ToWide(error).c_str(), L"Onze Tables", MB_OK | MB_ICONERROR | MB_SETFOREGROUND);
    return 1;
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    const DataFolders folders = FindDataFolders();
    OnlyCopy copy(folders);
    const OtherCopy other = copy.Start();
    if (other == OtherCopy::kShown) return 0;
    if (other != OtherCopy::kNone) return Report(std::string(ReportOf(other)));
    WindowsHost host(folders.datas, folders.own);
    ClockRandom random;
    Program program(host, random);
    const Reaction start = program.Take(event::Started());
    if (start.state == Reaction::State::kFailed) return Report(start.failure);
    std::string failure = "La fenêtre ne peut pas s'ouvrir.";
    {
        Window window(program, host);
        if (window.exists()) {
            copy.Mark(window.handle());
            window.Run();
            failure = window.failure();
        }
    }
    return failure.empty() ? 0 : Report(failure);
}
