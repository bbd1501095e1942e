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

// Every picture of the program, decoded before any screen is built.
class ScreenPictures {
  public:
    // In the order of their names. Throws RunTimeError, naming the file, when one is missing or unreadable.
    ScreenPictures(DataFiles& files, Pictures& pictures);

    const PicturePtr& Find(std::string_view name) const { return pictures_.at(std::string(name)); }

  private:
    std::map<std::string, PicturePtr> pictures_;
};

// Gives a screen the background picture of this name. On displays of more than 256 colours a picture's own
// palette has no effect, so none is kept.
void LoadScreenPictures(const ScreenPictures& pictures, Form& screen, std::string_view name);

}  // namespace onze
