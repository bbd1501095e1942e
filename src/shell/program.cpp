#include "shell/program.h"

#include "forms/platform.h"
#include "services/data_folder.h"
#include "services/screen_pictures.h"

namespace {

constexpr std::uint32_t kHideWindow = 0x80;
constexpr std::uint32_t kShowWindow = 0x40;
constexpr std::string_view kCountersFile = "18";

// Without a taskbar the call gets no window and does nothing.
void SetTaskbar(Platform& platform, std::uint32_t flags) {
    const Platform::WindowHandle taskbar = platform.FindWindowA("Shell_traywnd", "");
    platform.SetWindowPos(taskbar, 0, 0, 0, 0, 0, flags);
}

}  // namespace

Program::Program(Platform& platform, Random& random)
    : platform_(platform),
      stage_(platform),
      sounds_(platform),
      display_(platform),
      shared_{.sounds = sounds_, .random = random, .counters = record_.counters},
      screens_(stage_, shared_),
      depart_(platform, screens_, shared_) {
    screens_.depart.fin.on_click = [this] { fin_Click(); };
}

void Program::Load() {
    record_ = LoadUsageRecord(DataFile(platform_, kCountersFile));
    LoadPictures();
    depart_.Prepare();
    screens_.leçon.l9.SetCaption("342\rX  57");
    SavedScreenWidth = static_cast<float>(platform_.ScreenWidthInPixels());
    SavedScreenHeight = static_cast<float>(platform_.ScreenHeightInPixels());
    SetTaskbar(platform_, kHideWindow);
    display_.SetDisplayResolution(640, 480);
    screens_.depart.form.Show();
}

void Program::LoadPictures() {
    LoadScreenPictures(platform_, screens_.apprendre.form, "11");
    LoadScreenPictures(platform_, screens_.bilan.form, "12");
    LoadScreenPictures(platform_, screens_.exercices.form, "13");
    LoadScreenPictures(platform_, screens_.leçon.form, "14");
    LoadScreenPictures(platform_, screens_.depart.form, "15");
    LoadScreenPictures(platform_, screens_.pythagore.form, "16");
}

void Program::fin_Click() {
    sounds_.PlayNavigationSound("5");
    SaveUsageRecord(platform_, DataFile(platform_, kCountersFile), record_);
    display_.SetDisplayResolution(SavedScreenWidth, SavedScreenHeight);
    SetTaskbar(platform_, kShowWindow);
    platform_.EndProgram();
}
