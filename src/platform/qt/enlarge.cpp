#include "platform/qt/enlarge.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace {

constexpr int kTaps = 4;
constexpr int kChannels = 4;
using Pixel = std::array<float, kChannels>;  // blue, green, red, alpha; 0 to 255

// The old pixels that a new one is made of, in one direction.
struct Mix {
    std::array<int, kTaps> from;
    std::array<float, kTaps> weight;
};

std::array<float, kTaps> CatmullRom(float t) {
    return {t * (-0.5F + t * (1.0F - 0.5F * t)), 1.0F + t * t * (-2.5F + 1.5F * t),
            t * (0.5F + t * (2.0F - 1.5F * t)), t * t * (-0.5F + 0.5F * t)};
}

std::vector<Mix> Mixes(int old_length, int new_length) {
    std::vector<Mix> mixes;
    for (int i = 0; i < new_length; ++i) {
        const double place = (i + 0.5) * old_length / new_length - 0.5;
        const double before = std::floor(place);
        Mix& mix = mixes.emplace_back();
        mix.weight = CatmullRom(static_cast<float>(place - before));
        for (int k = 0; k < kTaps; ++k) {
            mix.from.at(static_cast<std::size_t>(k)) =
                std::clamp(static_cast<int>(before) + k - 1, 0, old_length - 1);
        }
    }
    return mixes;
}

template <class PixelAt>
Pixel Mixed(const Mix& mix, PixelAt pixel_at) {
    Pixel mixed{};
    for (std::size_t k = 0; k < kTaps; ++k) {
        const Pixel& pixel = pixel_at(mix.from[k]);
        for (std::size_t c = 0; c < kChannels; ++c) mixed[c] += mix.weight[k] * pixel[c];
    }
    return mixed;
}

// The curve can pass the ends of a channel's range; a premultiplied colour ends at its alpha.
QRgb ToRgb(const Pixel& pixel) {
    const float alpha = std::clamp(pixel[3], 0.0F, 255.0F);
    const auto byte = [alpha](float channel) {
        return static_cast<int>(std::clamp(channel, 0.0F, alpha) + 0.5F);
    };
    return qRgba(byte(pixel[2]), byte(pixel[1]), byte(pixel[0]), byte(alpha));
}

std::vector<Pixel> Row(const QImage& image, int y) {
    const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    std::vector<Pixel> row;
    row.reserve(static_cast<std::size_t>(image.width()));
    for (int x = 0; x < image.width(); ++x) {
        row.push_back({static_cast<float>(qBlue(line[x])), static_cast<float>(qGreen(line[x])),
                       static_cast<float>(qRed(line[x])), static_cast<float>(qAlpha(line[x]))});
    }
    return row;
}

}  // namespace

QImage Enlarged(const QImage& image, QSize size) {
    const std::vector<Mix> columns = Mixes(image.width(), size.width());
    std::vector<std::vector<Pixel>> wide_rows;
    for (int y = 0; y < image.height(); ++y) {
        const std::vector<Pixel> row = Row(image, y);
        std::vector<Pixel>& wide = wide_rows.emplace_back();
        wide.reserve(columns.size());
        for (const Mix& mix : columns) {
            wide.push_back(
                Mixed(mix, [&](int x) -> const Pixel& { return row[static_cast<std::size_t>(x)]; }));
        }
    }

    QImage enlarged(size, image.format());
    const std::vector<Mix> rows = Mixes(image.height(), size.height());
    for (int y = 0; y < size.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(enlarged.scanLine(y));
        const Mix& mix = rows[static_cast<std::size_t>(y)];
        for (std::size_t x = 0; x < columns.size(); ++x) {
            line[x] = ToRgb(Mixed(
                mix, [&](int from) -> const Pixel& { return wide_rows[static_cast<std::size_t>(from)][x]; }));
        }
    }
    return enlarged;
}
