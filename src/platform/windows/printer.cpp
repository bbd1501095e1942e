#include "platform/windows/printer.h"

#include <algorithm>
#include <array>
#include <string>

#include "platform/windows/library.h"
#include "platform/windows/utf8.h"
#include "shell/paper.h"

namespace onze {

namespace {

// The page on it is three times as large as on a screen.
constexpr int kDrawingWidth = 1920;
constexpr int kDrawingHeight = 1530;
constexpr double kMarginInches = 0.6;

// What the dialogue took from the heap of the system, given back at the end.
class PrinterChoice {
  public:
    explicit PrinterChoice(HWND window) {
        choice_.lStructSize = sizeof(choice_);
        choice_.hwndOwner = window;
    }
    PrinterChoice(const PrinterChoice&) = delete;
    PrinterChoice& operator=(const PrinterChoice&) = delete;
    ~PrinterChoice() {
        if (choice_.hDC) DeleteDC(choice_.hDC);
        GlobalFree(choice_.hDevMode);
        GlobalFree(choice_.hDevNames);
    }

    // Looks for the user's printer; without one there is nothing to choose.
    bool Find() {
        choice_.Flags = PD_RETURNDEFAULT | PD_NOWARNING;
        return Ask();
    }
    // Sideways at first; the user may choose otherwise. An error is told from a choice that is given up.
    Printed Choose() {
        if (auto* const mode = static_cast<DEVMODEW*>(GlobalLock(choice_.hDevMode))) {
            mode->dmFields |= DM_ORIENTATION;
            mode->dmOrientation = DMORIENT_LANDSCAPE;
            GlobalUnlock(choice_.hDevMode);
        }
        choice_.Flags = PD_RETURNDC | PD_NOSELECTION | PD_NOPAGENUMS | PD_USEDEVMODECOPIESANDCOLLATE;
        if (Ask()) return choice_.hDC ? Printed::kDone : Printed::kFailed;
        static const auto error =
            onze::Find<decltype(&CommDlgExtendedError)>(kLibrary, "CommDlgExtendedError");
        return error && error() == 0 ? Printed::kGivenUp : Printed::kFailed;
    }
    HDC printer() const { return choice_.hDC; }
    const wchar_t* file() const { return choice_.Flags & PD_PRINTTOFILE ? L"FILE:" : nullptr; }

  private:
    static constexpr const wchar_t* kLibrary = L"comdlg32.dll";

    bool Ask() {
        static const auto ask = onze::Find<decltype(&PrintDlgW)>(kLibrary, "PrintDlgW");
        return ask && ask(&choice_);
    }

    PRINTDLGW choice_{};
};

// Puts the sheet within even margins, from where the printer begins to print.
void PutWithinMargins(HDC printer, PaperCanvas& sheet) {
    const auto of = [printer](int quantity) { return GetDeviceCaps(printer, quantity); };
    const int across = static_cast<int>(kMarginInches * of(LOGPIXELSX));
    const int down = static_cast<int>(kMarginInches * of(LOGPIXELSY));
    SetViewportOrgEx(printer, across - of(PHYSICALOFFSETX), down - of(PHYSICALOFFSETY), nullptr);
    sheet.PutOn(printer, of(PHYSICALWIDTH) - 2 * across, of(PHYSICALHEIGHT) - 2 * down);
}

}  // namespace

PaperCanvas::PaperCanvas(Fonts& fonts)
    : fonts_(fonts),
      drawing_(kDrawingWidth, kDrawingHeight),
      view_(ViewOnPaper(kDrawingWidth, kDrawingHeight)),
      drawn_(drawing_.dc(), view_, fonts) {
    PatBlt(drawing_.dc(), 0, 0, kDrawingWidth, kDrawingHeight, WHITENESS);
}

// What is painted over a text hides it.
void PaperCanvas::DropTextsUnder(const Rect& box) {
    std::erase_if(texts_, [&](const Text& text) {
        const Size size = fonts_.MeasureText(text.line, text.font);
        const Rect cell{text.top_left.x, text.top_left.y, size.width, size.height};
        return box.United(cell) == box;
    });
}

void PaperCanvas::DrawPicture(const Picture& picture, Point top_left) {
    DropTextsUnder({top_left.x, top_left.y, picture.WidthInPixels() * kTwipsPerPixel,
                    picture.HeightInPixels() * kTwipsPerPixel});
    drawn_.DrawPicture(picture, top_left);
}

void PaperCanvas::FillBox(const Rect& box, Color color, int radius) {
    DropTextsUnder(box);
    drawn_.FillBox(box, color, radius);
}

void PaperCanvas::FrameBox(const Rect& box, Color color, int radius) {
    drawn_.FrameBox(box, color, radius);
}

void PaperCanvas::FillPolygon(std::span<const Point> corners, Color color) {
    drawn_.FillPolygon(corners, color);
}

void PaperCanvas::DrawLine(Point from, Point to, int width, Color color) {
    drawn_.DrawLine(from, to, width, color);
}

void PaperCanvas::DrawTextLine(Point top_left, std::string_view line, const Font& font, Color color) {
    texts_.push_back({top_left, std::string(line), font, color});
}

void PaperCanvas::PutOn(HDC printer, int width, int height) {
    const PageView view = ViewOnPaper(width, height);
    const double larger = static_cast<double>(view.page().width) / view_.page().width;
    const auto left = static_cast<int>(view.page().left - view_.page().left * larger);
    const auto top = static_cast<int>(view.page().top - view_.page().top * larger);
    const BITMAPINFO info = drawing_.info();
    GdiFlush();
    SetStretchBltMode(printer, COLORONCOLOR);
    StretchDIBits(printer, left, top, static_cast<int>(kDrawingWidth * larger),
                  static_cast<int>(kDrawingHeight * larger), 0, 0, kDrawingWidth, kDrawingHeight,
                  drawing_.Row(0), &info, DIB_RGB_COLORS, SRCCOPY);
    GdiCanvas canvas(printer, view, fonts_);
    for (const Text& text : texts_) canvas.DrawTextLine(text.top_left, text.line, text.font, text.color);
}

Printed Print(HWND window, PaperCanvas& sheet) {
    PrinterChoice choice(window);
    if (!choice.Find()) return Printed::kFailed;
    if (const Printed chosen = choice.Choose(); chosen != Printed::kDone) return chosen;
    const std::wstring title = ToWide(kPaperTitle);
    DOCINFOW document{};
    document.cbSize = sizeof(document);
    document.lpszDocName = title.c_str();
    document.lpszOutput = choice.file();
    const HDC printer = choice.printer();
    // Where the user is asked for a file, that can be given up, too.
    if (StartDocW(printer, &document) <= 0)
        return GetLastError() == ERROR_CANCELLED ? Printed::kGivenUp : Printed::kFailed;
    if (StartPage(printer) > 0) {
        PutWithinMargins(printer, sheet);
        if (EndPage(printer) > 0 && EndDoc(printer) > 0) return Printed::kDone;
    }
    AbortDoc(printer);
    return Printed::kFailed;
}

}  // namespace onze
