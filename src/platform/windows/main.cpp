#include <windows.h>

#include "platform/windows/text.h"
#include "platform/windows/window.h"
#include "platform/windows/windows_platform.h"
#include "shell/program.h"
#include "support/random.h"
#include "support/run_time_error.h"

namespace {

void RunProgram() {
    WindowsPlatform platform;
    ClockRandom random;
    Program program(platform, random);
    program.Load();
    Window window(platform, program.stage());
    window.Run();
}

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
    try {
        RunProgram();
        return 0;
    } catch (const RunTimeError& error) {
        return Report(error.what());
    } catch (const std::exception& error) {
        return Report(std::string("Erreur inattendue : ") + error.what());
    }
}
