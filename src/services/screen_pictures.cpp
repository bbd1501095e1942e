#include "services/screen_pictures.h"

#include "forms/form.h"
#include "services/anim.h"
#include "support/fingerprint.h"
#include "support/run_time_error.h"
#include "support/whole_picture.h"

namespace onze {

namespace {

constexpr const char* kUnreadable = "Image introuvable ou illisible";
constexpr std::string_view kBackgrounds[] = {"11", "12", "13", "14", "15", "16"};

PicturePtr IfLarger(const PicturePtr& picture, const Picture& than) {
    const bool fits = picture && picture->WidthInPixels() == than.WidthInPixels() * kLargerTimes &&
                      picture->HeightInPixels() == than.HeightInPixels() * kLargerTimes;
    return fits ? picture : nullptr;
}

void OfferLarger(const Picture& picture, std::string_view name, std::span<const std::byte> file,
                 DataFiles& files, Pictures& pictures) {
    const std::string larger = std::string(name) + ".3x";
    const std::string fingerprint = Fingerprint({reinterpret_cast<const char*>(file.data()), file.size()});
    picture.SetLarger([&picture, larger, fingerprint, &files, &pictures]() -> PicturePtr {
        const auto bytes = files.Read(larger);
        if (!bytes || PngText(*bytes, "Enlarges") != fingerprint) return nullptr;
        return IfLarger(pictures.Decode(larger, *bytes), picture);
    });
}

// All digits are cut from one, so it is kept.
void OfferLargerStrip(const Picture& strip, Pictures& pictures) {
    strip.SetLarger([&strip, &pictures, larger = PicturePtr()]() mutable {
        if (!larger) larger = IfLarger(pictures.Decode("anim.3x", kLargerAnim), strip);
        return larger;
    });
}

}  // namespace

ScreenPictures::ScreenPictures(DataFiles& files, Pictures& pictures) {
    for (const std::string_view name : kBackgrounds) {
        const auto bytes = files.Read(name);
        const PicturePtr picture = bytes ? pictures.Decode(name, *bytes) : nullptr;
        Keep(name, picture, files.PlaceOf(name));
        OfferLarger(*picture, name, *bytes, files, pictures);
    }
    const PicturePtr strip = pictures.Decode(kStripName, kAnim);
    Keep(kStripName, strip, std::string(kStripName));
    OfferLargerStrip(*strip, pictures);
}

void ScreenPictures::Keep(std::string_view name, const PicturePtr& picture, const std::string& place) {
    if (!picture) throw FileError(kUnreadable, place);
    pictures_.emplace(name, picture);
}

void LoadScreenPictures(const ScreenPictures& pictures, Form& screen, std::string_view name) {
    screen.SetPicture(pictures.Find(name));
}

}  // namespace onze
