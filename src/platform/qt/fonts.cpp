#include "platform/qt/fonts.h"

#include <QStringList>

namespace onze {

namespace {

QFont MakeFont(const Font& font) {
    QFont made;
    made.setFamilies({"Liberation Sans", "Arimo", "DejaVu Sans"});
    made.setPixelSize(font.height);
    made.setBold(font.bold);
    made.setHintingPreference(QFont::PreferNoHinting);
    // Coloured fringes do not survive a screenshot, a projector or a turned screen.
    made.setStyleStrategy(QFont::NoSubpixelAntialias);
    return made;
}

}  // namespace

const Fonts::Face& Fonts::Find(const Font& font) {
    const std::pair key(font.height, font.bold);
    const auto found = faces_.find(key);
    if (found != faces_.end()) return found->second;
    const QFont made = MakeFont(font);
    return faces_.try_emplace(key, Face{made, QFontMetricsF(made)}).first->second;
}

Size Fonts::MeasureText(std::string_view line, const Font& font) {
    const QFontMetricsF& metrics = Find(font).metrics;
    return {qCeil(metrics.horizontalAdvance(QString::fromUtf8(line))), qCeil(metrics.height())};
}

}  // namespace onze
