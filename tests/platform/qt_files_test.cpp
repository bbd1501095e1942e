#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "platform/data_files.h"
#include "platform/qt/calendar.h"

namespace onze {

namespace {

namespace fs = std::filesystem;

class QtFiles : public testing::Test {
  protected:
    QtFiles() {
        fs::remove_all(folder);
        fs::create_directories(folder);
    }
    ~QtFiles() override { fs::remove_all(folder); }

    static std::string Read(const fs::path& file) {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    std::ptrdiff_t Entries() const {
        return std::distance(fs::directory_iterator(folder), fs::directory_iterator());
    }

    const fs::path folder = fs::temp_directory_path() / ("onze tables é " + std::to_string(getpid()));
};

TEST_F(QtFiles, ReplacingKeepsPermissionsAndFollowsLinks) {
    std::ofstream(folder / "18") << "old";
    fs::permissions(folder / "18", fs::perms(0640));
    fs::create_symlink("18", folder / "link");
    EXPECT_TRUE(FolderFiles(folder).Replace("link", std::as_bytes(std::span("new", 3))));
    EXPECT_EQ(Read(folder / "18"), "new");
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_EQ(fs::status(folder / "18").permissions(), fs::perms(0640));
    EXPECT_EQ(Entries(), 2);
}

TEST(QtTime, IsWrittenAsTheLocaleDoesWithSeconds) {
    const QTime time(9, 20, 30);
    const auto text = [time](const char* locale) { return TimeText(QLocale(locale), time); };
    EXPECT_EQ(text("fr_FR"), "09:20:30");
    EXPECT_EQ(text("fr_CA"), "09 h 20 min 30 s");
    EXPECT_EQ(text("C"), "09:20:30");
    EXPECT_EQ(text("de_DE"), "09:20:30");
    EXPECT_EQ(text("fi_FI"), "9.20.30");
    EXPECT_EQ(text("en_US"), "9:20:30 AM");
    EXPECT_EQ(text("zh_CN"), "09:20:30");
    EXPECT_EQ(text("ca_ES"), "9:20:30");
    EXPECT_EQ(LongDateText(QLocale("fr_FR"), QDate(2001, 11, 10)), "samedi 10 novembre 2001");
}

}  // namespace

}  // namespace onze
