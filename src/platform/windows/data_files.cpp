#include "platform/windows/data_files.h"

#include <windows.h>

#include <memory>

#include "platform/windows/utf8.h"

namespace onze {

namespace {

struct HandleCloser {
    using pointer = HANDLE;
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using FileHandle = std::unique_ptr<HANDLE, HandleCloser>;

FileHandle Open(const std::filesystem::path& file, DWORD access, DWORD share, DWORD disposition) {
    const HANDLE handle =
        CreateFileW(file.c_str(), access, share, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    return FileHandle(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

bool WriteToDisk(const std::filesystem::path& file, DWORD disposition, std::span<const std::byte> bytes) {
    const FileHandle handle = Open(file, GENERIC_WRITE, 0, disposition);
    DWORD written = 0;
    return handle &&
           WriteFile(handle.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) &&
           written == bytes.size() && FlushFileBuffers(handle.get());
}

}  // namespace

std::filesystem::path FindDataFolder() {
    std::wstring name(MAX_PATH, L'\0');
    DWORD length = 0;
    while ((length = GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size()))) ==
           name.size()) {
        name.resize(2 * name.size());
    }
    name.resize(length);
    return std::filesystem::path(name).parent_path() / L"datas";
}

std::optional<std::vector<std::byte>> FolderFiles::Read(std::string_view name) {
    const std::filesystem::path file = folder_ / ToWide(name);
    const FileHandle handle = Open(file, GENERIC_READ, FILE_SHARE_READ, OPEN_EXISTING);
    LARGE_INTEGER size{};
    if (!handle || !GetFileSizeEx(handle.get(), &size) || size.HighPart != 0) return std::nullopt;
    std::vector<std::byte> bytes(size.LowPart);
    DWORD read = 0;
    if (!ReadFile(handle.get(), bytes.data(), size.LowPart, &read, nullptr)) return std::nullopt;
    bytes.resize(read);
    return bytes;
}

bool FolderFiles::Replace(std::string_view name, std::span<const std::byte> bytes) {
    const std::filesystem::path file = folder_ / ToWide(name);
    std::filesystem::path beside = file;
    beside += L".nouveau";
    if (WriteToDisk(beside, CREATE_ALWAYS, bytes) &&
        MoveFileExW(beside.c_str(), file.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
        return true;
    }
    DeleteFileW(beside.c_str());
    // Bytes that are there already take no room, so this works on a full disk, too.
    return WriteToDisk(file, OPEN_EXISTING, bytes);
}

std::string FolderFiles::PlaceOf(std::string_view name) const {
    return ToUtf8((folder_ / ToWide(name)).wstring());
}

}  // namespace onze
