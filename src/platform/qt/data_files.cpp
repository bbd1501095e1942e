#include "platform/qt/data_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <fstream>
#include <string>

namespace onze {

namespace fs = std::filesystem;

namespace {

constexpr mode_t kPermissions = 07777;

bool WriteToDisk(int descriptor, std::span<const std::byte> bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) return false;
        if (written > 0) bytes = bytes.subspan(static_cast<std::size_t>(written));
    }
    return fsync(descriptor) == 0;
}

// A file beside the one to replace; it goes away again unless it took its place.
class NewFile {
  public:
    explicit NewFile(const fs::path& beside)
        : name_(beside.string() + ".XXXXXX"), descriptor_(mkostemp(name_.data(), O_CLOEXEC)) {}
    ~NewFile() {
        if (descriptor_ < 0) return;
        close(descriptor_);
        if (!moved_) unlink(name_.c_str());
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    bool Fill(std::span<const std::byte> bytes, mode_t permissions) {
        return descriptor_ >= 0 && fchmod(descriptor_, permissions) == 0 && WriteToDisk(descriptor_, bytes);
    }
    bool MoveTo(const fs::path& file) {
        moved_ = rename(name_.c_str(), file.c_str()) == 0;
        return moved_;
    }

  private:
    std::string name_;
    int descriptor_;
    bool moved_ = false;
};

mode_t PermissionsOf(const fs::path& file) {
    struct stat status {};
    return stat(file.c_str(), &status) == 0 ? status.st_mode & kPermissions : 0644;
}

// From here on the new name lasts too. A folder that cannot do that is no failure: the content is in place.
void FlushFolder(const fs::path& folder) {
    const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return;
    fsync(descriptor);
    close(descriptor);
}

bool ReplaceWhole(const fs::path& file, std::span<const std::byte> bytes) {
    NewFile replacement(file);
    if (!replacement.Fill(bytes, PermissionsOf(file)) || !replacement.MoveTo(file)) return false;
    FlushFolder(file.parent_path());
    return true;
}

// Bytes that are there already take no room, so this works on a full disk, too.
bool WriteInPlace(const fs::path& file, std::span<const std::byte> bytes) {
    const int descriptor = open(file.c_str(), O_WRONLY | O_CLOEXEC);
    if (descriptor < 0) return false;
    const bool written = WriteToDisk(descriptor, bytes);
    return close(descriptor) == 0 && written;
}

}  // namespace

fs::path FindDataFolder(const fs::path& started_as) {
    std::error_code none;
    const fs::path itself = fs::read_symlink("/proc/self/exe", none);
    if (started_as.has_parent_path() && fs::equivalent(started_as, itself, none)) {
        fs::path datas = fs::canonical(started_as.parent_path(), none) / "datas";
        if (fs::is_directory(datas, none)) return datas;
    }
    return itself.parent_path() / "datas";
}

std::optional<std::vector<std::byte>> FolderFiles::Read(std::string_view name) {
    std::ifstream stream(folder_ / name, std::ios::binary);
    std::vector<std::byte> bytes;
    std::array<char, 65536> block{};
    while (stream.read(block.data(), block.size()), stream.gcount() > 0) {
        const auto read = std::as_bytes(std::span(block).first(static_cast<std::size_t>(stream.gcount())));
        bytes.insert(bytes.end(), read.begin(), read.end());
    }
    if (!stream.eof()) return std::nullopt;
    return bytes;
}

bool FolderFiles::Replace(std::string_view name, std::span<const std::byte> bytes) {
    std::error_code broken;
    const fs::path target = fs::weakly_canonical(folder_ / name, broken);
    return !broken && (ReplaceWhole(target, bytes) || WriteInPlace(target, bytes));
}

std::string FolderFiles::PlaceOf(std::string_view name) const {
    return (folder_ / name).string();
}

}  // namespace onze
