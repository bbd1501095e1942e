#include <QGuiApplication>
#include <QIcon>
#include <QTimer>
#include <cstdio>
#include <cstdlib>

#include "platform/qt/host.h"
#include "platform/qt/only_copy.h"
#include "platform/qt/report_window.h"
#include "platform/qt/window.h"
#include "shell/program.h"
#include "support/random.h"

using namespace onze;

namespace {

const char* const kName = "Onze Tables";

void ReportToErrorStream(const char* text) {
    std::fprintf(stderr, "%s : %s\n", kName, text);
}

// Where nobody sees a window, as in an automated run, the error stream is all.
void Report(const char* text) {
    ReportToErrorStream(text);
    const QString display = QGuiApplication::platformName();
    if (display == "offscreen" || display == "minimal") return;
    ReportWindow(kName, QString::fromUtf8(text)).Run();
}

// Without a display Qt would end the process in its own way.
void HandleQtMessage(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type != QtFatalMsg) {
        std::fprintf(stderr, "%s\n", text.toUtf8().constData());
        return;
    }
    ReportToErrorStream("Aucun affichage n'est utilisable.");
    std::fprintf(stderr, "%s\n", text.toUtf8().constData());
    std::quick_exit(1);
}

int Run(Program& program, QtHost& host) {
    const Reaction start = program.Take(event::Started());
    if (start.state == Reaction::State::kFailed) {
        Report(start.failure.c_str());
        return 1;
    }
    Window window(program, host);
    window.setTitle(kName);
    window.Present();
    // Once the page is shown, which need not wait for it.
    QTimer::singleShot(0, [] { QGuiApplication::setWindowIcon(QIcon(":/onze-tables.ico")); });
    const int status = QCoreApplication::exec();
    if (!window.failure().empty()) Report(window.failure().c_str());
    return status;
}

}  // namespace

int main(int, char** argv) {
    qInstallMessageHandler(HandleQtMessage);
    const DataFolders folders = FindDataFolders();
    OnlyCopy copy(folders);
    const OtherCopy other = copy.Start();
    if (other == OtherCopy::kShown) return 0;
    int only_the_name = 1;
    QGuiApplication application(only_the_name, argv);
    QGuiApplication::setDesktopFileName("onze-tables");
    if (other != OtherCopy::kNone) {
        Report(ReportOf(other).data());
        return 1;
    }
    copy.ShowWhenAsked();
    QtHost host(folders.datas, folders.own);
    ClockRandom random;
    Program program(host, random);
    const int status = Run(program, host);
    // Nothing is taken down: a sound that plays, or a sound server that does not answer, would delay the end.
    std::quick_exit(status);
}
