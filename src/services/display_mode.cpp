#include "services/display_mode.h"

#include <cmath>
#include <limits>

#include "support/run_time_error.h"

namespace onze {

namespace {

constexpr std::uint32_t kWidthAndHeight = 0x180000;

std::uint32_t RoundHalfToEven(float value) {
    return static_cast<std::uint32_t>(std::nearbyint(value));
}

// Walks every mode of the display, so that the record ends up with what the last one left in it.
void WalkModes(Desktop& desktop, DisplayModeRecord& record) {
    std::int32_t mode = 0;
    while ((desktop.EnumDisplaySettingsA(mode, record) & 0xFFFF) != 0) {
        if (mode == std::numeric_limits<std::int32_t>::max()) {
            throw RunTimeError("Dépassement de capacité du numéro de mode d'affichage.");
        }
        ++mode;
    }
}

}  // namespace

void DisplayMode::SetDisplayResolution(float width, float height) {
    WalkModes(desktop_, record_);
    record_.dmFields = kWidthAndHeight;
    record_.dmPelsWidth = RoundHalfToEven(width);
    record_.dmPelsHeight = RoundHalfToEven(height);
    desktop_.ChangeDisplaySettingsA(record_, 0);
}

}  // namespace onze
