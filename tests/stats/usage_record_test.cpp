#include "stats/usage_record.h"

#include <gtest/gtest.h>

#include "support/headless_host.h"

namespace onze {

namespace {

using namespace std::string_literals;

std::span<const std::byte> Bytes(const std::string& text) {
    return std::as_bytes(std::span(text));
}

std::string Text(const std::vector<std::byte>& bytes) {
    std::string text;
    for (const std::byte byte : bytes) text.push_back(static_cast<char>(byte));
    return text;
}

// A record whose fields are all different, and its bytes as they must stand in the file.
UsageRecord FullRecord() {
    UsageRecord record;
    record.reserved_value = TaggedNumber::Integer(1);
    record.reserved_text = "abcdefghij";
    record.counters.LessonConsultations = TaggedNumber::Integer(0x0102);
    record.counters.PythagoreConsultations = TaggedNumber::Long(0x00010203);
    record.counters.PythagoreSolves = TaggedNumber::Empty();
    record.counters.PuzzleCount = 0x0304;
    record.counters.PuzzleRight = -2;
    record.counters.PuzzleWrong = 32767;
    for (std::int16_t i = 0; i < 11; ++i) {
        const auto at = static_cast<std::size_t>(i);
        record.counters.TableConsultations[at] = static_cast<std::int16_t>(10 + i);
        record.counters.TableExercises[at] = static_cast<std::int16_t>(30 + i);
        record.counters.TableRight[at] = static_cast<std::int16_t>(50 + i);
        record.counters.TableWrong[at] = static_cast<std::int16_t>(70 + i);
    }
    return record;
}

std::string FullBytes() {
    std::string bytes = "\2\0\1\0abcdefghij\2\0\2\1\3\0\3\2\1\0\0\0\4\3\xFE\xFF\xFF\x7F"s;
    for (char i = 0; i < 11; ++i) {
        for (const int first : {10, 30, 50, 70}) bytes += {static_cast<char>(first + i), '\0'};
    }
    return bytes;
}

TEST(UsageRecord, StandsInTheFileFieldByField) {
    EXPECT_EQ(Text(ToBytes(FullRecord())), FullBytes());
    EXPECT_EQ(FromBytes(Bytes(FullBytes())), FullRecord());
    EXPECT_EQ(ToBytes(UsageRecord()).size(), 120U);
}

TEST(UsageRecord, IsToldFromOtherFiles) {
    const std::string delivered = Text(ToBytes(UsageRecord()));
    for (const std::string& record : {delivered, delivered + "et après", FullBytes().replace(28, 2, "\2\0"s)})
        EXPECT_TRUE(IsUsageRecord(Bytes(record)));
    std::string below_nothing = delivered;
    below_nothing.back() = '\x80';
    for (const std::string& other : {""s, "Ceci n'est pas un fichier de compteurs."s + std::string(200, ' '),
                                     delivered.substr(0, 119), "\4"s + delivered.substr(1), below_nothing})
        EXPECT_FALSE(IsUsageRecord(Bytes(other))) << other.size();
    EXPECT_FALSE(IsUsageRecord(Bytes(FullBytes())));  // which counts -2 right answers
}

TEST(UsageRecord, ShortFilesLeaveZeros) {
    const std::string whole = FullBytes();
    EXPECT_EQ(FromBytes({}), UsageRecord());
    const UsageRecord without_last = FromBytes(Bytes(whole.substr(0, whole.size() - 1)));
    EXPECT_EQ(without_last.counters.TableWrong[10], 0);
    EXPECT_EQ(without_last.counters.TableRight[10], 60);
    const UsageRecord tag_only = FromBytes(Bytes(whole.substr(0, 2)));
    EXPECT_EQ(tag_only.counters, Counters());
}

TEST(UsageRecord, UnknownTagsAreEmpty) {
    const std::string unknown = "\x09\0"s + std::string(118, '\1');
    EXPECT_EQ(FromBytes(Bytes(unknown)).reserved_value, TaggedNumber::Empty());
    EXPECT_EQ(FromBytes(Bytes(unknown)).reserved_text, std::string(10, '\1'));
}

TEST(UsageRecord, SavingMarksTheRecordAndKeepsTheBytesPastIt) {
    HeadlessHost host;
    std::string& file = host.files["18"];
    file += "+";
    std::string expected = file;
    expected[2] = '\1';
    for (int i = 0; i < 2; ++i) {
        UsageRecord record = LoadUsageRecord(host);
        SaveUsageRecord(host, record);
        EXPECT_EQ(file, expected);
    }
    UsageRecord record = LoadUsageRecord(host);
    host.files.clear();
    SaveUsageRecord(host, record);
    EXPECT_EQ(host.files["18"], expected.substr(0, 120));
}

}  // namespace

}  // namespace onze
