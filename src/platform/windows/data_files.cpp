#include "platform/data_files.h"

#include <windows.h>

#include <cstdlib>
#include <memory>

#include "platform/windows/utf8.h"
#include "support/fingerprint.h"

namespace onze {

namespace fs = std::filesystem;

namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
// How long a scanner or a backup may hold a file before it is given up.
constexpr ULONGLONG kPatienceMs = 4000;
constexpr DWORD kPauseMs = 50;

struct HandleCloser {
    using pointer = HANDLE;
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using FileHandle = std::unique_ptr<HANDLE, HandleCloser>;

FileHandle Open(const fs::path& file, DWORD access, DWORD share, DWORD disposition, DWORD flags) {
    const HANDLE handle = CreateFileW(file.c_str(), access, share, nullptr, disposition, flags, nullptr);
    return FileHandle(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

FileHandle OpenFolder(const fs::path& folder, DWORD access) {
    return Open(folder, access, kShareAll, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
}

// Its one true name, whatever drive letter, link or spelling it was reached by.
std::wstring FinalName(const fs::path& folder) {
    const FileHandle handle = OpenFolder(folder, 0);
    std::wstring name(32768, L'\0');
    const DWORD length =
        handle ? GetFinalPathNameByHandleW(handle.get(), name.data(), static_cast<DWORD>(name.size()), 0) : 0;
    if (length == 0 || length > name.size()) return folder.wstring();
    name.resize(length);
    return name;
}

bool IsHeldByAnother(DWORD error) {
    return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION;
}

// Takes a step again and again while another program holds a file; it is told so by the system's last error.
template <class Step>
bool Insist(Step step) {
    const ULONGLONG end = GetTickCount64() + kPatienceMs;
    while (!step()) {
        if (!IsHeldByAnother(GetLastError()) || GetTickCount64() >= end) return false;
        Sleep(kPauseMs);
    }
    return true;
}

bool WriteToDisk(const fs::path& file, DWORD disposition, std::span<const std::byte> bytes) {
    const FileHandle handle = Open(file, GENERIC_WRITE, FILE_SHARE_READ, disposition, FILE_ATTRIBUTE_NORMAL);
    DWORD written = 0;
    return handle &&
           WriteFile(handle.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) &&
           written == bytes.size() && FlushFileBuffers(handle.get());
}

// A file that is being read, or is not closed yet, refuses the new name as if it were forbidden.
bool Rename(const fs::path& from, const fs::path& to) {
    if (MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
        return true;
    if (GetLastError() == ERROR_ACCESS_DENIED) SetLastError(ERROR_SHARING_VIOLATION);
    return false;
}

void AllowWriting(const fs::path& file) {
    const DWORD attributes = GetFileAttributesW(file.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY))
        SetFileAttributesW(file.c_str(), attributes & ~static_cast<DWORD>(FILE_ATTRIBUTE_READONLY));
}

bool ReplaceWhole(const fs::path& file, std::span<const std::byte> bytes) {
    fs::path beside = file;
    beside += L".nouveau";
    AllowWriting(beside);
    if (Insist([&] { return WriteToDisk(beside, CREATE_ALWAYS, bytes); }) &&
        Insist([&] { return Rename(beside, file); })) {
        return true;
    }
    DeleteFileW(beside.c_str());
    return false;
}

}  // namespace

DataFolders FindDataFolders() {
    std::wstring name(MAX_PATH, L'\0');
    DWORD length = 0;
    while ((length = GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size()))) ==
           name.size()) {
        name.resize(2 * name.size());
    }
    name.resize(length);
    const fs::path datas = fs::path(name).parent_path() / L"datas";
    const std::string key = Fingerprint(ToUtf8(FinalName(datas)));
    const wchar_t* const home = _wgetenv(L"APPDATA");
    return {datas, home && *home ? fs::path(home) / L"Onze Tables" / key : fs::path(), key};
}

bool TakesFiles(const fs::path& folder) {
    return OpenFolder(folder, FILE_ADD_FILE) != nullptr;
}

std::optional<std::vector<std::byte>> FolderFiles::Read(std::string_view name) {
    const fs::path file = folder_ / ToWide(name);
    const FileHandle handle = Open(file, GENERIC_READ, kShareAll, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL);
    LARGE_INTEGER size{};
    if (!handle || !GetFileSizeEx(handle.get(), &size) || size.HighPart != 0) return std::nullopt;
    std::vector<std::byte> bytes(size.LowPart);
    DWORD read = 0;
    if (!ReadFile(handle.get(), bytes.data(), size.LowPart, &read, nullptr)) return std::nullopt;
    bytes.resize(read);
    return bytes;
}

bool FolderFiles::Replace(std::string_view name, std::span<const std::byte> bytes) {
    if (folder_.empty()) return false;
    std::error_code failed;
    fs::create_directories(folder_, failed);
    const fs::path file = folder_ / ToWide(name);
    AllowWriting(file);
    // Bytes that are there already take no room, so the second way works on a full disk, too.
    return ReplaceWhole(file, bytes) || Insist([&] { return WriteToDisk(file, OPEN_EXISTING, bytes); });
}

std::string FolderFiles::PlaceOf(std::string_view name) const {
    return ToUtf8((folder_ / ToWide(name)).wstring());
}

bool FolderFiles::Has(std::string_view name) const {
    return !folder_.empty() &&
           GetFileAttributesW((folder_ / ToWide(name)).c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool FolderFiles::Remove(std::string_view name) {
    const fs::path file = folder_ / ToWide(name);
    AllowWriting(file);
    return Insist([&] { return DeleteFileW(file.c_str()) != 0; });
}

}  // namespace onze
