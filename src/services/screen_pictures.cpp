#include "services/screen_pictures.h"

#include "forms/form.h"
#include "services/data_folder.h"

void LoadScreenPictures(Platform& platform, Form& screen, std::string_view name) {
    screen.SetPicture(platform.LoadPicture(DataFile(platform, name)));
}
