#pragma once

#include <windows.h>

namespace onze {

// A function of a system library that is loaded only when it is wanted, so that no start waits for it; null
// where there is none.
template <class Function>
Function Find(const wchar_t* library, const char* name) {
    const HMODULE found = LoadLibraryW(library);
    return found ? reinterpret_cast<Function>(reinterpret_cast<void (*)()>(GetProcAddress(found, name)))
                 : nullptr;
}

}  // namespace onze
