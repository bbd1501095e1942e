#include "platform/qt/replace_content.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <string>

#include "support/run_time_error.h"

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
    explicit NewFile(const std::filesystem::path& beside)
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
    bool MoveTo(const std::filesystem::path& file) {
        moved_ = rename(name_.c_str(), file.c_str()) == 0;
        return moved_;
    }

  private:
    std::string name_;
    int descriptor_;
    bool moved_ = false;
};

mode_t PermissionsOf(const std::filesystem::path& file) {
    struct stat status {};
    return stat(file.c_str(), &status) == 0 ? status.st_mode & kPermissions : 0644;
}

// From here on the new name lasts too. A folder that cannot do that is no failure: the content is in place.
void FlushFolder(const std::filesystem::path& folder) {
    const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return;
    fsync(descriptor);
    close(descriptor);
}

bool Replace(const std::filesystem::path& file, std::span<const std::byte> bytes) {
    NewFile replacement(file);
    if (!replacement.Fill(bytes, PermissionsOf(file)) || !replacement.MoveTo(file)) return false;
    FlushFolder(file.parent_path());
    return true;
}

// Bytes that are there already take no room, so this works on a full disk, too.
bool WriteInPlace(const std::filesystem::path& file, std::span<const std::byte> bytes) {
    const int descriptor = open(file.c_str(), O_WRONLY | O_CLOEXEC);
    if (descriptor < 0) return false;
    const bool written = WriteToDisk(descriptor, bytes);
    return close(descriptor) == 0 && written;
}

}  // namespace

void ReplaceContent(const std::filesystem::path& file, std::span<const std::byte> bytes) {
    std::error_code broken;
    const auto target = std::filesystem::weakly_canonical(file, broken);
    if (broken || !(Replace(target, bytes) || WriteInPlace(target, bytes)))
        throw FileError("Enregistrement impossible", file);
}
