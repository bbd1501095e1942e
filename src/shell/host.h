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
    TextMeasure& text_measure;
    const Clock& clock;
    DataFiles& files;
    Pictures& pictures;
    SoundPlayer& sound_player;
    Desktop& desktop;
    const Calendar& calendar;
};

}  // namespace onze
