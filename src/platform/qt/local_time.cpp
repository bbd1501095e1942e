#include "platform/qt/local_time.h"

#include <QRegularExpression>

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
