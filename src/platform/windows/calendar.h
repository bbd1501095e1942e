#pragma once

#include "services/calendar.h"

namespace onze {

// Without the blanks and direction marks that fonts lack.
class WindowsCalendar final : public Calendar {
  public:
    std::string LongDate() const override;
    std::string TimeOfDay() const override;
};

}  // namespace onze
