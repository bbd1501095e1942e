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

Pupil::Pupil(const Counters& counters) : program(platform, random), screens(program.screens()) {
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

void Pupil::Expect(std::vector<Draws> all, int place, const Draws& draws) {
    if (place >= 0) all.at(static_cast<std::size_t>(place)) = draws;
    for (const Draws& expected : all) random.Expect(expected);
}

void Pupil::ExpectTable(int place, const Draws& draws) {
    Expect({{kReseed, {2, 0}, {6, 0}, {6, 0}},     // once and once the table
            {kReseed, {2, 0}, {20, 0}, {14, 0}},   // once and three times the table
            {{26, 0}},                             // A
            {kReseed, {12, 1}, {12, 0}, {3, 0}}},  // twice and once the table
           place, draws);
}

void Pupil::ChooseTable(int table, int place, const Draws& draws) {
    ExpectTable(place, draws);
    Click(screens.depart.chiffre[table - kFirstTable]);
    EXPECT_EQ(Heard(), Names{"5"});
}

void Pupil::ExpectExercises(int place, const Draws& draws) {
    random.Expect({kReseed});
    Expect({{kReseed, {12, 3}, {11, 4}, {11, 4}},                  // 24, table of 6
            {{11, 5}, {11, 6}},                                    // 7 X 8
            {{10, 0}, {10, 5}},                                    // 3 X 8
            {{10, 5}, {10, 2}},                                    // 7 X 4
            {kReseed, kReseed, {2, 0}, {9, 3}, {12, 3}, {12, 5}},  // 24 + 36
            {{7, 4}, {12, 11}}},                                   // SOL X 12
           place, draws);
}

void Pupil::OpenExercises(int place, const Draws& draws) {
    ExpectExercises(place, draws);
    Click(screens.depart.exos);
    EXPECT_EQ(Heard(), Names{"5"});
}

Names Pupil::Heard() {
    const Names since(platform.sounds.begin() + static_cast<std::ptrdiff_t>(heard_), platform.sounds.end());
    heard_ = platform.sounds.size();
    return since;
}

bool Pupil::Sees(const Form& form) const {
    return program.stage().front() == &form;
}

Counters Pupil::Quit() {
    Click(screens.depart.fin);
    return LoadUsageRecord(DataFile(platform, "18")).counters;
}

void TryOut(Pupil& pupil, const UpDown& arrow, const Label& answer, const Names& values) {
    pupil.Heard();
    const std::string untouched = answer.caption();
    pupil.Step(arrow, -1);
    EXPECT_EQ(answer.caption(), untouched);
    pupil.Step(arrow, static_cast<int>(values.size()));
    EXPECT_EQ(pupil.Heard().size(), values.size() - 1);
    Names read;
    for (std::size_t i = 0; i < values.size(); ++i) {
        read.insert(read.begin(), answer.caption());
        pupil.Step(arrow, -1);
    }
    EXPECT_EQ(read, values);
    EXPECT_EQ(pupil.Heard().size(), values.size() - 1);
}

Names Numbers(const std::string& before, int first, int last, int step) {
    Names numbers;
    for (int number = first; number <= last; number += step)
        numbers.push_back(before + std::to_string(number));
    return numbers;
}
