#include "platform/windows/text.h"

#include <windows.h>

#include <algorithm>
#include <array>

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

std::wstring ToWide(std::string_view utf8) {
    const int length = static_cast<int>(utf8.size());
    std::wstring wide(utf8.size(), L'\0');
    wide.resize(static_cast<std::size_t>(
        MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, wide.data(), static_cast<int>(wide.size()))));
    return wide;
}

std::string ToUtf8(std::wstring_view wide) {
    const int length = static_cast<int>(wide.size());
    std::string utf8(3 * wide.size(), '\0');
    utf8.resize(static_cast<std::size_t>(WideCharToMultiByte(
        CP_UTF8, 0, wide.data(), length, utf8.data(), static_cast<int>(utf8.size()), nullptr, nullptr)));
    return utf8;
}

std::string LongDateText() {
    Letters date{};
    GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_LONGDATE, nullptr, nullptr, date.data(),
                    static_cast<int>(date.size()), nullptr);
    return ForFonts(date.data());
}

std::string TimeOfDayText() {
    Letters time{};
    GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, 0, nullptr, nullptr, time.data(),
                    static_cast<int>(time.size()));
    return ForFonts(time.data());
}
