#include <gtest/gtest.h>

#include "platform/windows/host.h"
#include "platform/windows/printer.h"

namespace onze {

namespace {

// What a printer is told: the texts, and how often it gets a picture.
struct Told {
    std::vector<std::wstring> texts;
    std::vector<int> lefts;
    int pictures = 0;
};

int CALLBACK Note(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM told) {
    auto& noted = *reinterpret_cast<Told*>(told);
    if (record->iType == EMR_STRETCHDIBITS) ++noted.pictures;
    if (record->iType == EMR_EXTTEXTOUTW) {
        const auto& text = reinterpret_cast<const EMREXTTEXTOUTW*>(record)->emrtext;
        const auto* const letters =
            reinterpret_cast<const wchar_t*>(reinterpret_cast<const char*>(record) + text.offString);
        noted.texts.emplace_back(letters, text.nChars);
        noted.lefts.push_back(text.ptlReference.x);
    }
    return TRUE;
}

TEST(WindowsPrinter, GetsOnePictureAndAboveItTheTextsThatShow) {
    WindowsHost host("datas");
    PaperCanvas sheet(host.fonts);
    const Font font{8.25_pt, true};
    sheet.DrawTextLine({40_px, 20_px}, "hidden", font, {});
    sheet.DrawTextLine({40_px, 220_px}, "seen", font, {});
    sheet.FillBox({30_px, 10_px, 200_px, 60_px}, {255, 255, 255}, 0);
    sheet.FillBox({30_px, 225_px, 20_px, 60_px}, {255, 255, 255}, 0);
    sheet.DrawTextLine({320_px, 20_px}, "égale", font, {});

    const HDC printer = CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
    sheet.PutOn(printer, 3840, 3060);
    const HENHMETAFILE kept = CloseEnhMetaFile(printer);
    Told told;
    EnumEnhMetaFile(nullptr, kept, &Note, &told, nullptr);
    DeleteEnhMetaFile(kept);
    EXPECT_EQ(told.texts, (std::vector<std::wstring>{L"seen", L"égale"}));
    EXPECT_EQ(told.lefts, (std::vector<int>{240, 1920}));
    EXPECT_EQ(told.pictures, 1);
}

}  // namespace

}  // namespace onze
