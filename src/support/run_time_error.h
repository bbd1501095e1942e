#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

// What ends a run: nobody catches it on its way to main(), which reports what() to the user and exits with a
// non-zero status. The text is French, UTF-8, and names the file or the counter concerned.
class RunTimeError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// A run-time error about a file: "<what> : « <file> »."
inline RunTimeError FileError(std::string_view what, const std::filesystem::path& file) {
    const std::u8string name = file.u8string();
    return RunTimeError(std::string(what) + " : « " + std::string(name.begin(), name.end()) + " ».");
}
