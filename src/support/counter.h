#pragma once

#include <cstdint>
#include <string_view>

namespace onze {

// Adds 1 to a 16-bit counter. Throws RunTimeError, naming the counter and leaving it as it was, past 32,767.
void Raise(std::int16_t& counter, std::string_view name);

// A number that carries its own type: 16 bits until it would pass 32,767, 32 bits from then on.
class TaggedNumber {
  public:
    enum class Tag : std::uint16_t { kEmpty = 0, kInteger = 2, kLong = 3 };

    TaggedNumber() = default;
    static TaggedNumber Empty() { return TaggedNumber(Tag::kEmpty, 0); }
    static TaggedNumber Integer(std::int16_t value) { return TaggedNumber(Tag::kInteger, value); }
    static TaggedNumber Long(std::int32_t value) { return TaggedNumber(Tag::kLong, value); }

    Tag tag() const { return tag_; }
    // 0 while the number is empty.
    std::int32_t value() const { return value_; }

    // Adds 1; an empty number becomes the 16-bit 1. Throws RunTimeError, naming the counter, past 32 bits.
    void Raise(std::string_view name);

    friend bool operator==(const TaggedNumber&, const TaggedNumber&) = default;

  private:
    TaggedNumber(Tag tag, std::int32_t value) : tag_(tag), value_(value) {}

    Tag tag_ = Tag::kInteger;
    std::int32_t value_ = 0;
};

}  // namespace onze
