#pragma once

#include "services/calendar.h"

namespace onze {

// In French, as it is written where the user lives.
class WebCalendar final : public Calendar {
  public:
    std::string LongDate() const override;
    std::string TimeOfDay() const override;
};

}  // namespace onze
