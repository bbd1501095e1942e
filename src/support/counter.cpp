#include "support/counter.h"

#include <limits>
#include <string>

#include "support/run_time_error.h"

namespace onze {

namespace {

[[noreturn]] void ThrowOverflow(std::string_view name) {
    throw RunTimeError("Dépassement de capacité du compteur « " + std::string(name) + " ».");
}

}  // namespace

void Raise(std::int16_t& counter, std::string_view name) {
    if (counter == std::numeric_limits<std::int16_t>::max()) ThrowOverflow(name);
    ++counter;
}

void TaggedNumber::Raise(std::string_view name) {
    if (value_ == std::numeric_limits<std::int32_t>::max()) ThrowOverflow(name);
    ++value_;
    const bool fits = value_ <= std::numeric_limits<std::int16_t>::max();
    tag_ = tag_ == Tag::kLong || !fits ? Tag::kLong : Tag::kInteger;
}

}  // namespace onze
