#include "support/pupil.h"

#include <algorithm>

#include "services/data_folder.h"
#include "stats/usage_record.h"
#include "support/run_time_error.h"

namespace {

Point Middle(const Rect& box) {
    return {box.left + box.width / 2, box.top + box.height / 2};
}

}  // namespace

Pupil::Pupil(const std::function<void(HeadlessPlatform&)>& prepare)
    : program(platform, random), screens(program.screens()) {
    prepare(platform);
    program.Load();
}

void Pupil::StartWith(const Counters& counters) {
    UsageRecord record;
    record.counters = counters;
    const auto bytes = ToBytes(record);
    platform.WriteData("18", {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    program.Load();
}

Point Pupil::On(const Control& control) const {
    const Form* front = program.stage().front();
    const Point middle = Middle(control.box());
    if (!front || front->ControlAt(middle) == &control) return middle;
    const Point corner{control.box().left + 1_px, control.box().top + 1_px};
    return front->ControlAt(corner) == &control ? corner : middle;
}

void Pupil::MoveOnto(const Control& control) {
    program.stage().Move(On(control));
}

void Pupil::Click(const Control& control) {
    const Form* front = program.stage().front();
    ASSERT_TRUE(front && front->ControlAt(On(control)) == &control) << "out of the pointer's reach";
    Tap(control);
}

void Pupil::ClickIntoFull(const Control& control, const std::string& counter) {
    const std::string file = platform.ReadData("18");
    try {
        Click(control);
        ADD_FAILURE() << "a full counter was raised";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.what(), "Dépassement de capacité du compteur « " + counter + " ».");
    }
    EXPECT_EQ(platform.ReadData("18"), file);
}

void Pupil::Tap(const Control& control) {
    const Point point = On(control);
    program.stage().Move(point);
    program.stage().Press(point);
    program.stage().Release(point);
}

void Pupil::Step(const UpDown& arrows, int times) {
    const Rect& box = arrows.box();
    const Point half{box.left + box.width / 2, times > 0 ? box.top + 1_px : box.bottom() - 1_px};
    for (int i = 0; i < std::abs(times); ++i) {
        program.stage().Press(half);
        program.stage().Release(half);
    }
}

void Pupil::Turn(const UpDown& arrows, int value) {
    const int direction = value > arrows.value() ? 1 : -1;
    while (arrows.value() * direction < value * direction) {
        const int before = arrows.value();
        Step(arrows, direction);
        ASSERT_NE(arrows.value(), before) << "the arrows stop before " << value;
    }
}

void Pupil::Wait(std::int64_t milliseconds) {
    for (std::int64_t i = 0; i < milliseconds; ++i) {
        ++platform.now;
        program.stage().RunDue();
    }
}

std::vector<std::string> Pupil::Heard() {
    const std::vector<std::string> since(platform.sounds.begin() + static_cast<std::ptrdiff_t>(heard_),
                                         platform.sounds.end());
    heard_ = platform.sounds.size();
    return since;
}

std::vector<std::string> Pupil::Seen() const {
    TextCanvas canvas;
    program.stage().Paint(canvas, {0, 0, kPageWidth, kPageHeight});
    return canvas.texts;
}

bool Pupil::Sees(const Form& form) const {
    return program.stage().front() == &form;
}

Counters Pupil::SavedCounters() const {
    return LoadUsageRecord(DataFile(platform, "18")).counters;
}

Counters Pupil::Quit() {
    Click(screens.depart.fin);
    return SavedCounters();
}
