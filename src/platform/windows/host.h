#pragma once

#include "platform/data_files.h"
#include "platform/steady_clock.h"
#include "platform/windows/calendar.h"
#include "platform/windows/desktop.h"
#include "platform/windows/fonts.h"
#include "platform/windows/gdi_plus.h"
#include "platform/windows/pictures.h"
#include "platform/windows/sound_player.h"
#include "shell/host.h"
#include "stats/usage_record.h"

namespace onze {

// All that Windows, 7 and later, offers to the program.
struct WindowsHost {
    explicit WindowsHost(const std::filesystem::path& datas, const std::filesystem::path& own = {})
        : data_folder(datas), own_folder(own) {}

    GdiPlus gdi_plus;
    Fonts fonts;
    SteadyClock clock;
    FolderFiles data_folder;
    FolderFiles own_folder;
    UserFiles files{data_folder, own_folder, kCountersFile};
    WindowsPictures pictures;
    WindowsSoundPlayer sound_player{files};
    WindowsDesktop desktop;
    WindowsCalendar calendar;

    operator Host() { return {fonts, clock, files, pictures, sound_player, desktop, calendar}; }
};

}  // namespace onze
