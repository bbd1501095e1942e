#pragma once

#include <cstddef>
#include <cstdint>

// What the page's script does for the program; browser.mjs has the other side, under the same names. Texts
// are UTF-8; boxes are pixels of the canvas; a color is 0xRRGGBB.
namespace onze::browser {

#define ONZE_BROWSER(name) __attribute__((import_module("browser"), import_name(#name)))

extern "C" {

// Files of the site, and the bytes that the browser keeps; a size is -1 where there is none. A file that was
// not loaded yet is loaded for the next time.
ONZE_BROWSER(fileSize) int FileSize(const char* name, std::size_t length);
ONZE_BROWSER(readFile) void ReadFile(const char* name, std::size_t length, std::byte* into);
ONZE_BROWSER(keptSize) int KeptSize();
ONZE_BROWSER(readKept) void ReadKept(std::byte* into);
ONZE_BROWSER(keep) bool Keep(const std::byte* bytes, std::size_t size);

// Pictures have numbers, -1 for none.
ONZE_BROWSER(findPicture) int FindPicture(const char* name, std::size_t length);
ONZE_BROWSER(pictureWidth) int PictureWidth(int picture);
ONZE_BROWSER(pictureHeight) int PictureHeight(int picture);

ONZE_BROWSER(clipTo) void ClipTo(int left, int top, int width, int height);
ONZE_BROWSER(unclip) void Unclip();
ONZE_BROWSER(drawPicture)
void DrawPicture(int picture, int from_left, int from_top, int from_width, int from_height, int left, int top,
                 int width, int height);
ONZE_BROWSER(fillBox) void FillBox(int left, int top, int width, int height, double radius, int color);
ONZE_BROWSER(frameBox)
void FrameBox(int left, int top, int width, int height, int line, double radius, int color);
ONZE_BROWSER(fillPolygon) void FillPolygon(const int* corners, std::size_t count, int color);
ONZE_BROWSER(drawLine) void DrawLine(double x1, double y1, double x2, double y2, int width, int color);
// The font is so many units high, each of them `scale` pixels.
ONZE_BROWSER(drawText)
void DrawText(const char* text, std::size_t length, int height, bool bold, int left, int baseline,
              double scale, int color);
ONZE_BROWSER(textWidth) double TextWidth(const char* text, std::size_t length, int height, bool bold);

ONZE_BROWSER(startSound) void StartSound(const char* name, std::size_t length);
ONZE_BROWSER(stopSound) void StopSound();

// Write a text of at most this size, and return its size.
ONZE_BROWSER(longDate) std::size_t LongDate(char* into, std::size_t room);
ONZE_BROWSER(timeOfDay) std::size_t TimeOfDay(char* into, std::size_t room);

ONZE_BROWSER(screenWidth) int ScreenWidth();
ONZE_BROWSER(screenHeight) int ScreenHeight();

ONZE_BROWSER(placePage) void PlacePage(int left, int top, int width, int height);
ONZE_BROWSER(repaint) void Repaint(int left, int top, int width, int height);
ONZE_BROWSER(wakeIn) void WakeIn(double milliseconds);  // below 0: not at all
ONZE_BROWSER(showHand) void ShowHand(bool hand);
ONZE_BROWSER(printPage) void PrintPage();
ONZE_BROWSER(end) void End();
ONZE_BROWSER(fail) void Fail(const char* text, std::size_t length);

// What a screen reader finds, in the order of reading: where other controls are there, first their number and
// then each of them; else those that changed.
ONZE_BROWSER(readControls) void ReadControls(std::size_t count);
ONZE_BROWSER(readControl)
void ReadControl(std::size_t index, const void* control, int kind, bool stop, const char* name,
                 std::size_t name_length, int left, int top, int width, int height);
ONZE_BROWSER(readAnswer)
void ReadAnswer(std::size_t index, int value, int minimum, int maximum, const char* text, std::size_t length);
ONZE_BROWSER(focusOn) void FocusOn(int index);  // -1: on none
ONZE_BROWSER(say) void Say(const char* text, std::size_t length);
}

#undef ONZE_BROWSER

}  // namespace onze::browser
