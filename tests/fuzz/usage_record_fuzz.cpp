#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "stats/usage_record.h"
#include "support/headless_host.h"

using namespace onze;

// Any file of counters can be loaded; saved, it loads again with the same values, and keeps what is not its
// own.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    HeadlessHost host;
    const std::string old(reinterpret_cast<const char*>(data), size);
    host.files["18"] = old;

    UsageRecord record = LoadUsageRecord(host);
    const Counters loaded = record.counters;
    SaveUsageRecord(host, record);
    const std::string saved = host.files["18"];
    const std::size_t own = ToBytes(record).size();
    const bool keeps_the_rest =
        saved.size() == std::max(own, size) && saved.substr(own) == old.substr(std::min(own, size));
    if (record.counters != loaded || LoadUsageRecord(host) != record || !keeps_the_rest) std::abort();
    return 0;
}
