#include "stats/usage_record.h"

#include <algorithm>

#include "support/run_time_error.h"

namespace onze {

namespace {

// The fields in the order of the file, told once for reading and writing.
template <class Archive, class Record>
void VisitFields(Archive& archive, Record& record) {
    archive.Tagged(record.reserved_value);
    archive.Text(record.reserved_text);
    auto& counters = record.counters;
    for (auto* tagged :
         {&counters.LessonConsultations, &counters.PythagoreConsultations, &counters.PythagoreSolves}) {
        archive.Tagged(*tagged);
    }
    for (auto* word : {&counters.PuzzleCount, &counters.PuzzleRight, &counters.PuzzleWrong}) {
        archive.Word(*word);
    }
    for (std::size_t i = 0; i < kStoredTables; ++i) {
        for (auto* table : {&counters.TableConsultations, &counters.TableExercises, &counters.TableRight,
                            &counters.TableWrong}) {
            archive.Word((*table)[i]);
        }
    }
}

class Reader {
  public:
    explicit Reader(std::span<const std::byte> bytes) : bytes_(bytes) {}

    void Word(std::int16_t& value) { Number(value); }

    void Text(std::string& text) {
        for (char& c : text) Number(c);
    }

    void Tagged(TaggedNumber& number) {
        std::uint16_t tag = 0;
        if (!Number(tag)) return;
        std::int16_t integer = 0;
        std::int32_t wide = 0;
        if (tag == static_cast<std::uint16_t>(TaggedNumber::Tag::kInteger)) {
            Number(integer);
            number = TaggedNumber::Integer(integer);
        } else if (tag == static_cast<std::uint16_t>(TaggedNumber::Tag::kLong)) {
            Number(wide);
            number = TaggedNumber::Long(wide);
        } else {
            number = TaggedNumber::Empty();
        }
    }

  private:
    // Little-endian. Past the end nothing is read, and a number that the end cuts off is lacking as a whole.
    template <class Number_>
    bool Number(Number_& value) {
        if (bytes_.size() < sizeof(value)) {
            bytes_ = {};
            return false;
        }
        std::uint32_t bits = 0;
        for (std::size_t i = 0; i < sizeof(value); ++i) {
            bits |= std::to_integer<std::uint32_t>(bytes_[i]) << (8 * i);
        }
        value = static_cast<Number_>(bits);
        bytes_ = bytes_.subspan(sizeof(value));
        return true;
    }

    std::span<const std::byte> bytes_;
};

class Writer {
  public:
    void Word(std::int16_t value) { Number(static_cast<std::uint16_t>(value), 2); }

    void Text(const std::string& text) {
        for (const char c : text) Number(static_cast<unsigned char>(c), 1);
    }

    void Tagged(const TaggedNumber& number) {
        Number(static_cast<std::uint16_t>(number.tag()), 2);
        const auto bits = static_cast<std::uint32_t>(number.value());
        if (number.tag() == TaggedNumber::Tag::kInteger) Number(bits, 2);
        if (number.tag() == TaggedNumber::Tag::kLong) Number(bits, 4);
    }

    std::vector<std::byte> Take() { return std::move(bytes_); }

  private:
    void Number(std::uint32_t bits, int size) {
        for (int i = 0; i < size; ++i) bytes_.push_back(static_cast<std::byte>(bits >> (8 * i) & 0xFF));
    }

    std::vector<std::byte> bytes_;
};

}  // namespace

std::vector<std::byte> ToBytes(const UsageRecord& record) {
    Writer writer;
    VisitFields(writer, record);
    return writer.Take();
}

UsageRecord FromBytes(std::span<const std::byte> bytes) {
    UsageRecord record;
    Reader reader(bytes);
    VisitFields(reader, record);
    return record;
}

bool IsUsageRecord(std::span<const std::byte> bytes) {
    const UsageRecord record = FromBytes(bytes);
    const std::vector<std::byte> written = ToBytes(record);
    if (bytes.size() < written.size() || !std::equal(written.begin(), written.end(), bytes.begin()))
        return false;
    const Counters& counters = record.counters;
    bool counts = counters.PuzzleCount >= 0 && counters.PuzzleRight >= 0 && counters.PuzzleWrong >= 0;
    for (const TaggedNumber& number :
         {counters.LessonConsultations, counters.PythagoreConsultations, counters.PythagoreSolves})
        counts = counts && number.value() >= 0;
    for (const auto& table :
         {counters.TableConsultations, counters.TableExercises, counters.TableRight, counters.TableWrong})
        counts = counts && *std::min_element(table.begin(), table.end()) >= 0;
    return counts;
}

UsageRecord LoadUsageRecord(DataFiles& files) {
    const auto bytes = files.Read(kCountersFile);
    if (!bytes)
        throw FileError("Fichier des compteurs introuvable ou illisible", files.PlaceOf(kCountersFile));
    return FromBytes(*bytes);
}

void SaveUsageRecord(DataFiles& files, UsageRecord& record) {
    record.reserved_value = TaggedNumber::Integer(1);
    std::vector<std::byte> bytes = ToBytes(record);
    const auto old = files.Read(kCountersFile);
    if (old && old->size() > bytes.size()) {
        bytes.insert(bytes.end(), old->begin() + static_cast<std::ptrdiff_t>(bytes.size()), old->end());
    }
    if (!files.Replace(kCountersFile, bytes))
        throw FileError("Enregistrement impossible", files.PlaceOf(kCountersFile));
}

}  // namespace onze
