#include <memory>

#include "platform/web/browser.h"
#include "platform/web/host.h"
#include "platform/web/keys.h"
#include "platform/web/window.h"
#include "shell/program.h"
#include "support/random.h"
#include "support/run_time_error.h"

using namespace onze;

namespace {

// One run of the program, which lasts as long as its instance of the module.
struct Run {
    WebHost host;
    ClockRandom random;
    Program program{host, random};
    Window window{program, host};
    Counters saved;
};

Run& TheRun() {
    static const std::unique_ptr<Run> run = std::make_unique<Run>();
    return *run;
}

// What the script writes or reads.
std::vector<std::byte>& Room() {
    static std::vector<std::byte> room;
    return room;
}

// Catches what is written, instead of writing it.
class CatchingFiles final : public DataFiles {
  public:
    explicit CatchingFiles(DataFiles& files) : files_(files) {}

    std::optional<std::vector<std::byte>> Read(std::string_view name) override { return files_.Read(name); }
    bool Replace(std::string_view, std::span<const std::byte> bytes) override {
        Room().assign(bytes.begin(), bytes.end());
        return true;
    }
    std::string PlaceOf(std::string_view name) const override { return files_.PlaceOf(name); }

  private:
    DataFiles& files_;
};

void Take(const Event& event) {
    TheRun().window.Take(event);
}

}  // namespace

#define ONZE_EXPORT(name) extern "C" __attribute__((export_name(#name)))

ONZE_EXPORT(start) void Start() {
    Take(event::Started());
    TheRun().saved = TheRun().program.counters();
}

ONZE_EXPORT(resize) void Resize(int width, int height) {
    Take(event::WindowResized{width, height});
}

ONZE_EXPORT(paint) void Paint(int left, int top, int width, int height) {
    TheRun().window.Paint({left, top, width, height});
}

ONZE_EXPORT(paintOnPaper) void PaintOnPaper(int width, int height) {
    TheRun().window.PaintOnPaper(width, height);
}

ONZE_EXPORT(time) void PassTime() {
    Take(event::TimePassed());
}

ONZE_EXPORT(move) void Move(int x, int y) {
    Take(event::PointerMoved{{x, y}});
}

ONZE_EXPORT(press)
void Press(int x, int y, bool finger, double time, int double_click_time, double double_click_distance) {
    Take(event::PointerPressed{.at = {x, y},
                               .finger = finger,
                               .time = static_cast<std::int64_t>(time),
                               .double_click_time = double_click_time,
                               .double_click_distance = double_click_distance});
}

ONZE_EXPORT(release) void Release(int x, int y) {
    Take(event::PointerReleased{{x, y}});
}

ONZE_EXPORT(lose) void Lose() {
    Take(event::PointerLost());
}

ONZE_EXPORT(leave) void Leave() {
    TheRun().window.Leave();
}

ONZE_EXPORT(wheel) void Wheel(int x, int y, int turn) {
    Take(event::WheelTurned{{x, y}, turn});
}

// The key's name and its place on the keyboard stand in the room, one behind the other. Tells whether the
// program has a use for it.
ONZE_EXPORT(key)
bool Key(std::size_t name_size, std::size_t code_size, bool shift, bool control, bool repeated) {
    const std::string_view texts(reinterpret_cast<const char*>(Room().data()), Room().size());
    const auto press =
        KeyPressOf(texts.substr(0, name_size), texts.substr(name_size, code_size), shift, control, repeated);
    if (press) Take(event::KeyPressed{*press});
    return press.has_value();
}

// Of the element with this number in the order of reading.
ONZE_EXPORT(focus) void Focus(std::size_t index) {
    TheRun().window.Use(index, Use::kFocus);
}

ONZE_EXPORT(click) void Click(std::size_t index) {
    TheRun().window.Use(index, Use::kClick);
}

// Makes room for so many bytes, and tells where.
ONZE_EXPORT(makeRoom) std::byte* MakeRoom(std::size_t size) {
    Room().resize(size);
    return Room().data();
}

// A picture turned out to be none: ends the run as its start would have ended.
ONZE_EXPORT(checkPictures) void CheckPictures() {
    try {
        const ScreenPictures pictures(TheRun().host.files, TheRun().host.pictures);
    } catch (const RunTimeError& error) {
        const std::string_view text = error.what();
        browser::Fail(text.data(), text.size());
    }
}

// Whether something was counted that no file holds.
ONZE_EXPORT(hasCounted) bool HasCounted() {
    return TheRun().program.counters() != TheRun().saved;
}

// Writes the counters file as "SORTIE" would write it now into the room, and tells its size.
ONZE_EXPORT(writeCounters) std::size_t WriteCounters() {
    DataFiles& files = TheRun().host.files;
    const auto old = files.Read(kCountersFile);
    UsageRecord record = old ? FromBytes(*old) : UsageRecord();
    record.counters = TheRun().program.counters();
    CatchingFiles catching(files);
    SaveUsageRecord(catching, record);
    return Room().size();
}

// Whether the bytes in the room are a counters file.
ONZE_EXPORT(isCountersFile) bool IsCountersFile() {
    return IsUsageRecord(Room());
}
