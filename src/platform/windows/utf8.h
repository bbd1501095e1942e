#pragma once

#include <string>
#include <string_view>

namespace onze {

// The program's texts are UTF-8, the system's are UTF-16. What is not valid becomes a replacement mark.
std::wstring ToWide(std::string_view utf8);
std::string ToUtf8(std::wstring_view wide);

}  // namespace onze
