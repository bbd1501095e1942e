#pragma once

#include "services/calendar.h"

namespace onze {

// In French, whatever language the browser speaks.
class WebCalendar final : public Calendar {
  public:
    std::string LongDate() const override;
    std::string TimeOfDay() const override;
};

}  // namespace onze
