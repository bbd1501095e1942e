#pragma once

namespace onze {

class Calendar;
class Clock;
class DataFiles;
class Desktop;
class Pictures;
class SoundPlayer;
class TextMeasure;

// What the program needs of the system it runs on. None of it throws.
struct Host {
    TextMeasure& text_measure;  // forms/text_measure.h
    const Clock& clock;         // forms/clock.h
    DataFiles& files;           // services/data_files.h
    Pictures& pictures;         // services/pictures.h
    SoundPlayer& sound_player;  // services/sound_player.h
    Desktop& desktop;           // services/desktop.h
    const Calendar& calendar;   // services/calendar.h
};

}  // namespace onze
