#include "platform/web/calendar.h"

#include "platform/web/browser.h"

namespace onze {

namespace {

constexpr std::size_t kRoom = 100;

std::string Ask(std::size_t (*write)(char*, std::size_t)) {
    std::string text(kRoom, '\0');
    text.resize(write(text.data(), text.size()));
    return text;
}

}  // namespace

std::string WebCalendar::LongDate() const {
    return Ask(browser::LongDate);
}

std::string WebCalendar::TimeOfDay() const {
    return Ask(browser::TimeOfDay);
}

}  // namespace onze
