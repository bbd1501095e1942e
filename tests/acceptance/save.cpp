// Loads the counters and saves them as the program does. In between it waits for the input's end; from then
// on it makes no calls but those of the save.
#include <cstdio>

#include "services/data_folder.h"
#include "stats/usage_record.h"

#ifdef _WIN32
#include "platform/windows/windows_platform.h"
#else
#include <poll.h>

#include "platform/qt/qt_platform.h"
#endif

int main() {
#ifdef _WIN32
    WindowsPlatform platform;
    const auto wait = [] { std::getchar(); };
#else
    QtPlatform platform(FindExecutableFolder("/proc/self/exe"));
    const auto wait = [] {  // by a call that no save makes: it can be counted or not
        pollfd input{.fd = 0, .events = POLLIN, .revents = 0};
        poll(&input, 1, -1);
    };
#endif
    const std::filesystem::path file = DataFile(platform, "18");
    UsageRecord record = LoadUsageRecord(file);
    std::puts("loaded");
    std::fflush(stdout);
    wait();
    SaveUsageRecord(platform, file, record);
}
