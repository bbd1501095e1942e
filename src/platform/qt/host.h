#pragma once

#include "platform/data_files.h"
#include "platform/qt/calendar.h"
#include "platform/qt/desktop.h"
#include "platform/qt/fonts.h"
#include "platform/qt/pictures.h"
#include "platform/qt/sound_player.h"
#include "platform/steady_clock.h"
#include "shell/host.h"
#include "stats/usage_record.h"

namespace onze {

// All that a Linux desktop offers to the program. Needs a QGuiApplication.
struct QtHost {
    explicit QtHost(const std::filesystem::path& datas, const std::filesystem::path& own = {})
        : data_folder(datas), own_folder(own), sound_player(datas) {}

    Fonts fonts;
    SteadyClock clock;
    FolderFiles data_folder;
    FolderFiles own_folder;
    UserFiles files{data_folder, own_folder, kCountersFile};
    QtPictures pictures;
    SdlSoundPlayer sound_player;
    QtDesktop desktop;
    QtCalendar calendar;

    operator Host() { return {fonts, clock, files, pictures, sound_player, desktop, calendar}; }
};

}  // namespace onze
