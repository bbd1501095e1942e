#include "services/screen_pictures.h"

#include "forms/form.h"
#include "services/anim.h"
#include "support/run_time_error.h"

namespace onze {

namespace {

constexpr const char* kUnreadable = "Image introuvable ou illisible";
constexpr std::string_view kBackgrounds[] = {"11", "12", "13", "14", "15", "16"};

}  // namespace

ScreenPictures::ScreenPictures(DataFiles& files, Pictures& pictures) {
    const auto keep = [this](std::string_view name, const PicturePtr& picture, const std::string& place) {
        if (!picture) throw FileError(kUnreadable, place);
        pictures_.emplace(name, picture);
    };
    for (const std::string_view name : kBackgrounds) {
        const auto bytes = files.Read(name);
        keep(name, bytes ? pictures.Decode(name, *bytes) : nullptr, files.PlaceOf(name));
    }
    keep(kStripName, pictures.Decode(kStripName, kAnim), std::string(kStripName));
}

void LoadScreenPictures(const ScreenPictures& pictures, Form& screen, std::string_view name) {
    screen.SetPicture(pictures.Find(name));
}

}  // namespace onze
