#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace onze {

// What ends a run: nobody catches it on its way to the program's front door, whose host reports what() to the
// user and ends with a non-zero status. The text is French, UTF-8, and names the file or the counter
// concerned.
class RunTimeError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// A run-time error about a file: "<what> : « <where it lies> »."
inline RunTimeError FileError(std::string_view what, const std::string& place) {
    return RunTimeError(std::string(what) + " : « " + place + " ».");
}

}  // namespace onze
