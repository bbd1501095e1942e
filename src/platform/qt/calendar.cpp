#include "platform/qt/calendar.h"

#include <QRegularExpression>

namespace onze {

namespace {

// Locales have seconds in their long time format only, and there beside a time zone.
QString TimeFormat(const QLocale& locale) {
    static const QRegularExpression zone(R"(,?\s*[(\[]?\bt\b[)\]]?\s*)");
    return locale.timeFormat(QLocale::LongFormat).remove(zone);
}

}  // namespace

std::string LongDateText(const QLocale& locale, QDate date) {
    return locale.toString(date, QLocale::LongFormat).toStdString();
}

std::string TimeText(const QLocale& locale, QTime time) {
    return locale.toString(time, TimeFormat(locale)).toStdString();
}

std::string QtCalendar::LongDate() const {
    return LongDateText(QLocale::system(), QDate::currentDate());
}

std::string QtCalendar::TimeOfDay() const {
    return TimeText(QLocale::system(), QTime::currentTime());
}

}  // namespace onze
