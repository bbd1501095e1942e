#pragma once

#include "platform/steady_clock.h"
#include "platform/web/calendar.h"
#include "platform/web/data_files.h"
#include "platform/web/desktop.h"
#include "platform/web/fonts.h"
#include "platform/web/pictures.h"
#include "platform/web/sound_player.h"
#include "shell/host.h"
#include "stats/usage_record.h"

namespace onze {

// All that a browser offers to the program.
struct WebHost {
    Fonts fonts;
    SteadyClock clock;
    SiteFiles site_files;
    KeptFile kept_file;
    UserFiles files{site_files, kept_file, kCountersFile};
    WebPictures pictures;
    WebSoundPlayer sound_player;
    WebDesktop desktop;
    WebCalendar calendar;

    operator Host() { return {fonts, clock, files, pictures, sound_player, desktop, calendar}; }
};

}  // namespace onze
