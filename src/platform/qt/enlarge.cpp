#include "platform/qt/enlarge.h"

#include <QSysInfo>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <thread>
#include <vector>

namespace onze {

namespace {

constexpr int kTaps = 4;
constexpr int kWorthAThread = 200;  // rows; a page has more, a digit has not
constexpr std::size_t kChannels = 4;
constexpr std::size_t kAlpha = QSysInfo::ByteOrder == QSysInfo::LittleEndian ? 3 : 0;
using Row = std::vector<float>;  // the channels of one pixel after the other, 0 to 255

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

// As many values from each place on, mixed. The compiler makes vectors of it, as nothing else lies where it
// writes.
using Places = std::array<const float*, kTaps>;
void MixInto(float* __restrict mixed, const std::array<float, kTaps>& weight, const Places& from,
             std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        mixed[i] =
            weight[0] * from[0][i] + weight[1] * from[1][i] + weight[2] * from[2][i] + weight[3] * from[3][i];
    }
}

// A picture's rows, brought to their new width one after the other; the last few are kept.
class WideRows {
  public:
    WideRows(const QImage& image, int width) : image_(image), columns_(Mixes(image.width(), width)) {
        narrow_.resize(kChannels * static_cast<std::size_t>(image.width()));
        for (Row& row : kept_) row.resize(kChannels * columns_.size());
    }

    const float* At(int y) {
        if (next_ < 0) next_ = y;
        for (; next_ <= y; ++next_) Widen(next_);
        return Kept(y).data();
    }

  private:
    Row& Kept(int y) { return kept_.at(static_cast<std::size_t>(y % kTaps)); }

    void Widen(int y) {
        const std::uint8_t* bytes = image_.constScanLine(y);
        std::copy_n(bytes, narrow_.size(), narrow_.begin());
        float* wide = Kept(y).data();
        for (const Mix& mix : columns_) {
            Places from;
            for (std::size_t k = 0; k < kTaps; ++k) {
                from[k] = narrow_.data() + kChannels * static_cast<std::size_t>(mix.from[k]);
            }
            MixInto(wide, mix.weight, from, kChannels);
            wide += kChannels;
        }
    }

    const QImage& image_;
    std::vector<Mix> columns_;
    Row narrow_;
    std::array<Row, kTaps> kept_;
    int next_ = -1;  // none is wide yet
};

// The curve can pass the ends of a channel's range; a premultiplied colour ends at its alpha.
void EndAtAlpha(Row& row) {
    for (float* pixel = row.data(); pixel != row.data() + row.size(); pixel += kChannels) {
        const float alpha = pixel[kAlpha];
        for (std::size_t c = 0; c < kChannels; ++c) pixel[c] = std::min(pixel[c], alpha);
    }
}

std::uint8_t ToByte(float channel) {
    return static_cast<std::uint8_t>(std::clamp(channel + 0.5F, 0.0F, 255.0F));
}

// The new rows from one to before another, into the bytes of the whole picture.
void EnlargeRows(const QImage& image, QSize size, std::uint8_t* bytes, int begin, int end) {
    WideRows wide_rows(image, size.width());
    const std::vector<Mix> rows = Mixes(image.height(), size.height());
    Row mixed(kChannels * static_cast<std::size_t>(size.width()));
    bytes += mixed.size() * static_cast<std::size_t>(begin);
    for (int y = begin; y < end; ++y) {
        const Mix& mix = rows[static_cast<std::size_t>(y)];
        Places from;
        for (std::size_t k = 0; k < kTaps; ++k) from[k] = wide_rows.At(mix.from[k]);
        MixInto(mixed.data(), mix.weight, from, mixed.size());
        if (image.hasAlphaChannel()) EndAtAlpha(mixed);
        bytes = std::transform(mixed.begin(), mixed.end(), bytes, ToByte);
    }
}

}  // namespace

QImage Enlarged(const QImage& image, QSize size) {
    QImage enlarged(size, image.format());
    const int middle = size.height() >= kWorthAThread ? size.height() / 2 : 0;
    std::uint8_t* const bytes = enlarged.bits();
    std::jthread upper;
    if (middle > 0) upper = std::jthread([=, &image] { EnlargeRows(image, size, bytes, 0, middle); });
    EnlargeRows(image, size, bytes, middle, size.height());
    return enlarged;
}

}  // namespace onze
