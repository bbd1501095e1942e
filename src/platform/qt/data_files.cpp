#include "platform/data_files.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "support/fingerprint.h"

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

// Where the user's programs keep their data; a relative path is no answer.
fs::path DataHome() {
    const char* const told = std::getenv("XDG_DATA_HOME");
    if (told && fs::path(told).is_absolute()) return told;
    const char* home = std::getenv("HOME");
    const passwd* const user = home && fs::path(home).is_absolute() ? nullptr : getpwuid(getuid());
    if (user) home = user->pw_dir;
    return home && fs::path(home).is_absolute() ? fs::path(home) / ".local" / "share" : fs::path();
}

}  // namespace

DataFolders FindDataFolders() {
    std::error_code none;
    const fs::path programs = fs::read_symlink("/proc/self/exe", none).parent_path();
    const fs::path beside = programs / "datas";
    const fs::path installed = programs.parent_path() / "share" / "onze-tables" / "datas";
    const fs::path own = DataHome().empty() ? fs::path() : DataHome() / "onze-tables";
    const bool is_installed = !fs::is_directory(beside, none) && fs::is_directory(installed, none);
    const fs::path& datas = is_installed ? installed : beside;
    const std::string key = Fingerprint(fs::weakly_canonical(datas, none).string());
    return {datas, own.empty() ? own : own / (is_installed ? "datas" : key), key};
}

bool TakesFiles(const fs::path& folder) {
    return access(folder.c_str(), W_OK) == 0;
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
    if (folder_.empty()) return false;
    std::error_code broken;
    fs::create_directories(folder_, broken);
    const fs::path target = fs::weakly_canonical(folder_ / name, broken);
    return !broken && (ReplaceWhole(target, bytes) || WriteInPlace(target, bytes));
}

std::string FolderFiles::PlaceOf(std::string_view name) const {
    return (folder_ / name).string();
}

bool FolderFiles::Has(std::string_view name) const {
    std::error_code unknown;
    return !folder_.empty() && fs::exists(folder_ / name, unknown);
}

bool FolderFiles::Remove(std::string_view name) {
    std::error_code failed;
    return fs::remove(folder_ / name, failed) && !failed;
}

}  // namespace onze
