// Loads the counters and saves them as the program does. In between it waits for the input's end; from then
// on it makes no calls but those of the save.
#include <cstdio>

#include "platform/data_files.h"
#include "stats/usage_record.h"

#ifndef _WIN32
#include <poll.h>
#endif

using namespace onze;

int main() {
    FolderFiles files(FindDataFolders().datas);
#ifdef _WIN32
    const auto wait = [] { std::getchar(); };
#else
    const auto wait = [] {  // by a call that no save makes: it can be counted or not
        pollfd input{.fd = 0, .events = POLLIN, .revents = 0};
        poll(&input, 1, -1);
    };
#endif
    UsageRecord record = LoadUsageRecord(files);
    std::puts("loaded");
    std::fflush(stdout);
    wait();
    SaveUsageRecord(files, record);
}
