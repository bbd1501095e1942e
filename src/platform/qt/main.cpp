#include <QApplication>
#include <QMessageBox>
#include <cstdio>
#include <cstdlib>

#include "platform/qt/page_window.h"
#include "platform/qt/qt_platform.h"
#include "shell/program.h"
#include "support/random.h"

namespace {

const char* const kName = "Onze Tables";

// Where nobody sees a window, as in an automated run, the error stream is all.
bool HasDisplay() {
    const QString display = QGuiApplication::platformName();
    return display != "offscreen" && display != "minimal";
}

void Report(const char* text) {
    std::fprintf(stderr, "%s : %s\n", kName, text);
    if (HasDisplay()) QMessageBox::critical(nullptr, kName, QString::fromUtf8(text));
}

int RunProgram(const char* started_as) {
    QtPlatform platform(FindExecutableFolder(started_as));
    ClockRandom random;
    Program program(platform, random);
    program.Load();
    PageWindow window(program.stage(), platform);
    window.setTitle(kName);
    window.Present();
    const int status = QCoreApplication::exec();
    window.RethrowFailure();
    // Neither a sound that is still playing nor a sound server that does not answer delays the end.
    std::quick_exit(status);
}

}  // namespace

int main(int, char** argv) {
    int only_the_name = 1;
    QApplication application(only_the_name, argv);
    QGuiApplication::setDesktopFileName("onze-tables");
    try {
        return RunProgram(argv[0]);
    } catch (const std::exception& error) {
        Report(error.what());
    }
    std::quick_exit(1);
}
