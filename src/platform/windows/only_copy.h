#pragma once

#include <windows.h>

#include <string>

#include "platform/data_files.h"
#include "shell/other_copy.h"

namespace onze {

// One copy of the program at a time for each data folder. The first holds a mutex, which the system lets go
// with its process, in whatever way that ends.
class OnlyCopy {
  public:
    explicit OnlyCopy(const DataFolders& folders);
    OnlyCopy(const OnlyCopy&) = delete;
    OnlyCopy& operator=(const OnlyCopy&) = delete;
    ~OnlyCopy();

    // Makes this the first copy, or brings the window of the one there is to the front.
    OtherCopy Start();
    // Marks the window by which this copy is found.
    void Mark(HWND window) const { SetPropW(window, name_.c_str(), mutex_); }

  private:
    HWND WindowOfOther() const;

    const std::wstring name_;
    const HANDLE mutex_;
    bool first_ = false;
};

}  // namespace onze
