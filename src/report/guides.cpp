// Makes the documents that come with the program: prelt-guides FOLDER SOURCE.md …

#include "guidetext.h"
#include "pdffile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

/// The first line is the title: "# …".
static QString titleOf(const QString &text)
{
    return text.section(u'\n', 0, 0).remove(u'#').trimmed();
}

static bool make(const QString &source, const QDir &folder)
{
    QFile file(source);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fputs(qPrintable(u"prelt-guides: %1: %2\n"_s.arg(source, file.errorString())), stderr);
        return false;
    }
    const QString text = QString::fromUtf8(file.readAll());
    const QString target = folder.filePath(QFileInfo(source).completeBaseName() + u".pdf"_s);
    const Result<Done> made = writePdf(guideText(text), titleOf(text), target);
    if (!made)
        std::fputs(qPrintable(u"prelt-guides: "_s + made.trouble().what.arguments.join(u": "_s) + u'\n'), stderr);
    return bool(made);
}

int main(int argc, char **argv)
{
    const QGuiApplication app(argc, argv);
    const QStringList arguments = QGuiApplication::arguments().sliced(1);
    if (arguments.size() < 2) {
        std::fputs("usage: prelt-guides FOLDER SOURCE.md ...\n", stderr);
        return 2;
    }
    const QDir folder(arguments.first());
    folder.mkpath(u"."_s);
    const auto made = [&folder](const QString &source) { return make(source, folder); };
    return std::ranges::all_of(arguments.sliced(1), made) ? 0 : 1;
}
