#pragma once

#include <QDateTime>
#include <QLocale>

#include "services/calendar.h"

namespace onze {

// Date and time of day as a locale writes them at length, the time with its seconds; in UTF-8.
std::string LongDateText(const QLocale& locale, QDate date);
std::string TimeText(const QLocale& locale, QTime time);

class QtCalendar final : public Calendar {
  public:
    std::string LongDate() const override;
    std::string TimeOfDay() const override;
};

}  // namespace onze
