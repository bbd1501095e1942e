#include "platform/windows/calendar.h"

#include <windows.h>

#include <algorithm>
#include <array>

#include "platform/windows/utf8.h"

namespace onze {

namespace {

constexpr std::array<wchar_t, 2> kThinBlanks{L'\u2009', L'\u202f'};
constexpr std::array<wchar_t, 2> kDirectionMarks{L'\u200e', L'\u200f'};

template <std::size_t size>
bool IsOneOf(const std::array<wchar_t, size>& letters, wchar_t letter) {
    return std::find(letters.begin(), letters.end(), letter) != letters.end();
}

std::string ForFonts(std::wstring text) {
    std::erase_if(text, [](wchar_t letter) { return IsOneOf(kDirectionMarks, letter); });
    std::replace_if(
        text.begin(), text.end(), [](wchar_t letter) { return IsOneOf(kThinBlanks, letter); }, L' ');
    return ToUtf8(text);
}

using Letters = std::array<wchar_t, 256>;

}  // namespace

std::string WindowsCalendar::LongDate() const {
    Letters date{};
    GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_LONGDATE, nullptr, nullptr, date.data(),
                    static_cast<int>(date.size()), nullptr);
    return ForFonts(date.data());
}

std::string WindowsCalendar::TimeOfDay() const {
    Letters time{};
    GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, 0, nullptr, nullptr, time.data(),
                    static_cast<int>(time.size()));
    return ForFonts(time.data());
}

}  // namespace onze
