#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "services/data_folder.h"
#include "stats/usage_record.h"
#include "support/headless_platform.h"

// Any file of counters can be loaded; saved, it loads again with the same values, and keeps what is not its
// own.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static HeadlessPlatform platform;
    const std::string old(reinterpret_cast<const char*>(data), size);
    platform.WriteData("18", old);
    const auto file = DataFile(platform, "18");

    UsageRecord record = LoadUsageRecord(file);
    const Counters loaded = record.counters;
    SaveUsageRecord(platform, file, record);
    const std::string saved = platform.ReadData("18");
    const std::size_t own = ToBytes(record).size();
    const bool keeps_the_rest =
        saved.size() == std::max(own, size) && saved.substr(own) == old.substr(std::min(own, size));
    if (record.counters != loaded || LoadUsageRecord(file) != record || !keeps_the_rest) std::abort();
    platform.calls.clear();
    return 0;
}
