#include "learn/table_pictures.h"

#include <array>
#include <string>

#include "learn/apprendre.h"
#include "services/picture_clip.h"
#include "support/number_text.h"

namespace onze {

namespace {

struct Cell {
    int x;
    int y;
    int width;
    int height;
};

constexpr std::array<Cell, 3> kSmallTenToTwelve{{{1, 88, 53, 25}, {55, 88, 36, 25}, {92, 88, 47, 25}}};
constexpr std::array<Cell, 3> kLargeTenToTwelve{{{351, 1, 61, 57}, {413, 1, 59, 57}, {473, 1, 62, 57}}};

Cell SmallDigit(int digit) {
    return {37 * digit + 2, 61, 36, 25};
}

Cell SmallNumber(int table) {
    return table < 10 ? SmallDigit(table) : kSmallTenToTwelve.at(static_cast<std::size_t>(table - 10));
}

Cell LargeNumber(int table) {
    if (table < 10) return {35 * table + 1, 1, 34, 57};
    return kLargeTenToTwelve.at(static_cast<std::size_t>(table - 10));
}

void SetClip(Image& image, PictureClip& anim, const Cell& cell) {
    anim.ClipX = cell.x;
    anim.ClipY = cell.y;
    anim.ClipWidth = cell.width;
    anim.ClipHeight = cell.height;
    image.SetPicture(anim.Clip());
}

}  // namespace

void ShowTableNumber(PictureClip& anim, Apprendre& apprendre, int table) {
    for (int i = 1; i <= 11; ++i) SetClip(apprendre.multiplicateur[i], anim, SmallNumber(table));
    SetClip(apprendre.multiplicateur[12], anim, LargeNumber(table));
}

void ShowTableProducts(PictureClip& anim, Apprendre& apprendre, int table) {
    for (int row = 0; row < 12; ++row) {
        const std::string digits = Digits((row + 1) * table);
        // A lone digit stands in the middle of its row; longer products fill the row from the left.
        int place = 3 * row + (digits.size() == 1 ? 1 : 0);
        for (const char digit : digits) SetClip(apprendre.resultat[place++], anim, SmallDigit(digit - '0'));
    }
}

}  // namespace onze
