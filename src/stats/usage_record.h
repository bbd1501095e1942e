#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "services/data_files.h"
#include "stats/counters.h"

namespace onze {

// The counters and the values that lead them in their file, which are carried along and never shown.
struct UsageRecord {
    TaggedNumber reserved_value;
    std::string reserved_text = std::string(10, ' ');
    Counters counters;

    friend bool operator==(const UsageRecord&, const UsageRecord&) = default;
};

// The bytes of a record, and a record from bytes. Any bytes can be read: what they lack stays zero (the text:
// blanks), an unknown tag counts as empty.
std::vector<std::byte> ToBytes(const UsageRecord& record);
UsageRecord FromBytes(std::span<const std::byte> bytes);
// Whether bytes were written as a record, whatever follows it, and count no less than nothing.
bool IsUsageRecord(std::span<const std::byte> bytes);

// The file of the counters.
inline constexpr std::string_view kCountersFile = "18";

// Both throw RunTimeError, naming the file, when it cannot be read or written.
UsageRecord LoadUsageRecord(DataFiles& files);
// Marks the record as saved once. Bytes of the old file past the end of the record are kept.
void SaveUsageRecord(DataFiles& files, UsageRecord& record);

}  // namespace onze
