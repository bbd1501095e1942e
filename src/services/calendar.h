#pragma once

#include <string>

namespace onze {

// The present day and time of day, in the system's long formats; UTF-8.
class Calendar {
  public:
    virtual ~Calendar() = default;

    virtual std::string LongDate() const = 0;
    virtual std::string TimeOfDay() const = 0;
};

}  // namespace onze
