#include "support/pupil.h"

#include <algorithm>

#include "stats/usage_record.h"

namespace onze {

Pupil::Pupil(const Counters& counters)
    : program(host, random), start(Prepared(counters)), screens(program.screens()) {}

Reaction Pupil::Prepared(const Counters& counters) {
    UsageRecord record;
    record.counters = counters;
    host.Replace("18", ToBytes(record));
    host.calls.clear();
    return program.Take(event::Started());
}

Pixel Pupil::On(const Control& control) const {
    const Rect& box = control.box();
    const auto finds = [&](Pixel pixel) {
        const Form* front = program.stage().front();
        return front && front->ControlAt(program.view().ToPage(pixel)) == &control;
    };
    const Pixel middle = program.view().ToPixels(Point{box.left + box.width / 2, box.top + box.height / 2});
    const Pixel corner = program.view().ToPixels(Point{box.left + 1_px, box.top + 1_px});
    return !finds(middle) && finds(corner) ? corner : middle;
}

void Pupil::MoveOnto(const Control& control) {
    program.Take(event::PointerMoved{On(control)});
}

void Pupil::Press(Key key) {
    reaction = program.Take(event::KeyPressed{{.key = key}});
}

void Pupil::Type(const std::string& characters) {
    host.now += 2000;
    for (const char character : characters)
        reaction = program.Take(event::KeyPressed{{.key = Key::kCharacter, .character = character}});
}

bool Pupil::FocusOn(const Control& control) {
    constexpr int kMoreThanStops = 40;
    for (int i = 0; i < kMoreThanStops && program.stage().focused() != &control; ++i) Press(Key::kTab);
    return program.stage().focused() == &control;
}

void Pupil::Click(const Control& control) {
    if (by_keys) {
        ASSERT_TRUE(FocusOn(control)) << "out of the keys' reach";
        return Press(Key::kClick);
    }
    const Form* front = program.stage().front();
    ASSERT_TRUE(front && front->ControlAt(program.view().ToPage(On(control))) == &control)
        << "out of the pointer's reach";
    Tap(control);
}

void Pupil::ClickIntoFull(const Control& control, const std::string& counter) {
    const std::string file = host.files["18"];
    Click(control);
    EXPECT_EQ(reaction.state, Reaction::State::kFailed);
    EXPECT_EQ(reaction.failure, "Dépassement de capacité du compteur « " + counter + " ».");
    EXPECT_EQ(host.files["18"], file);
}

void Pupil::Tap(const Control& control) {
    if (by_keys) {
        if (FocusOn(control)) Press(Key::kClick);
        return;
    }
    const Pixel pixel = On(control);
    hand = program.Take(event::PointerMoved{pixel}).hand;
    program.Take(event::PointerPressed{.at = pixel});
    reaction = program.Take(event::PointerReleased{pixel});
}

void Pupil::Step(const UpDown& arrows, int times) {
    if (by_keys) {
        ASSERT_TRUE(FocusOn(arrows.answer()));
        for (int i = 0; i < std::abs(times); ++i) Press(times > 0 ? Key::kUp : Key::kDown);
        return;
    }
    const Rect& box = arrows.box();
    const Pixel half = program.view().ToPixels(
        Point{box.left + box.width / 2, times > 0 ? box.top + 1_px : box.bottom() - 1_px});
    for (int i = 0; i < std::abs(times); ++i) {
        program.Take(event::PointerPressed{.at = half});
        program.Take(event::PointerReleased{half});
    }
}

void Pupil::Turn(const UpDown& arrows, int value) {
    if (by_keys) {
        ASSERT_TRUE(FocusOn(arrows.answer()));
        const std::string text = arrows.text_of(value);
        return Type(text.substr(text.find_first_not_of(' ')));
    }
    const int direction = value > arrows.value() ? 1 : -1;
    while (arrows.value() * direction < value * direction) {
        const int before = arrows.value();
        Step(arrows, direction);
        ASSERT_NE(arrows.value(), before) << "the arrows stop before " << value;
    }
}

void Pupil::Wait(std::int64_t milliseconds) {
    for (std::int64_t i = 0; i < milliseconds; ++i) {
        ++host.now;
        program.Take(event::TimePassed());
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
    const Names since(host.sounds.begin() + static_cast<std::ptrdiff_t>(heard_), host.sounds.end());
    heard_ = host.sounds.size();
    return since;
}

bool Pupil::Sees(const Form& form) const {
    return program.stage().front() == &form;
}

Counters Pupil::Quit() {
    Click(screens.depart.fin);
    EXPECT_EQ(reaction.state, Reaction::State::kEnded);
    return LoadUsageRecord(host).counters;
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

}  // namespace onze
