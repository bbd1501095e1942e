#include "platform/qt/printer.h"

#include <QDesktopServices>
#include <QDir>
#include <QSaveFile>
#include <QStandardPaths>
#include <QUrl>

#include "shell/paper.h"

namespace onze {

namespace {

// The page comes to lie there just as large as its larger picture is.
constexpr int kDotsPerInch = 216;
const QMarginsF kMargins(43, 42, 43, 43);  // points

QString Title() {
    return QString::fromUtf8(kPaperTitle.data(), qsizetype(kPaperTitle.size()));
}

// A name that no file of the folder has.
QString NewFile(const QDir& folder) {
    QString file = Title() + ".pdf";
    for (int number = 2; folder.exists(file); ++number)
        file = QString("%1 (%2).pdf").arg(Title()).arg(number);
    return folder.filePath(file);
}

bool Write(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

}  // namespace

Sheet::Sheet() : writer_((bytes_.open(QIODevice::WriteOnly), &bytes_)) {
    writer_.setPageLayout({QPageSize(QPageSize::A4), QPageLayout::Landscape, kMargins});
    writer_.setResolution(kDotsPerInch);
    writer_.setTitle(Title());
}

PageView Sheet::view() const {
    return ViewOnPaper(writer_.width(), writer_.height());
}

std::string Sheet::Hand() {
    const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    const QString file = NewFile(documents);
    if (!documents.mkpath(".") || !Write(file, bytes_.data())) return NotPrinted(file.toStdString());
    if (QDesktopServices::openUrl(QUrl::fromLocalFile(file))) return {};
    return "La page à imprimer est dans " + file.toStdString();
}

}  // namespace onze
