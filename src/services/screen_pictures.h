#pragma once

#include <map>
#include <string>
#include <string_view>

#include "services/data_files.h"
#include "services/pictures.h"

namespace onze {

class Form;

// The name of the strip of digit pictures, which travels inside the program.
inline constexpr std::string_view kStripName = "anim";

// How much larger a larger picture is, to each side.
inline constexpr int kLargerTimes = 3;

// Every picture of the program, decoded before any screen is built. Beside a background "11" may lie "11.3x",
// the same drawn larger: a PNG whose text "Enlarges" is the fingerprint of the file that it belongs to.
// Beside another file, or broken, it is as good as missing.
class ScreenPictures {
  public:
    // In the order of their names. Throws RunTimeError, naming the file, when one is missing or unreadable.
    // Files and pictures are asked for larger ones as long as there are any pictures.
    ScreenPictures(DataFiles& files, Pictures& pictures);

    const PicturePtr& Find(std::string_view name) const { return pictures_.at(std::string(name)); }

  private:
    void Keep(std::string_view name, const PicturePtr& picture, const std::string& place);

    std::map<std::string, PicturePtr> pictures_;
};

// Gives a screen the background picture of this name. On displays of more than 256 colours a picture's own
// palette has no effect, so none is kept.
void LoadScreenPictures(const ScreenPictures& pictures, Form& screen, std::string_view name);

}  // namespace onze
