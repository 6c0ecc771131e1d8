// Makes the documents that come with the program: prelt-guides FOLDER SOURCE.md …

#include "guidetext.h"
#include "pdffile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QRegularExpression>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

/// The first line is the title: "# …".
static QString titleOf(const QString &text)
{
    return text.section(u'\n', 0, 0).remove(u'#').trimmed();
}

static Result<QString> textOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Trouble{{u"GUIDE_MISSING"_s, {path, file.errorString()}}};
    return QString::fromUtf8(file.readAll());
}

/// What several guides share lies in a folder beside them.
static Result<QString> withShared(const QString &path)
{
    static const QRegularExpression kInclude(u"\\{\\{include ([a-z]+)\\}\\}"_s);
    Result<QString> text = textOf(path);
    for (auto mark = kInclude.match(text ? *text : QString()); text && mark.hasMatch(); mark = kInclude.match(*text)) {
        const Result<QString> shared = textOf(QFileInfo(path).dir().filePath(u"shared/%1.md"_s.arg(mark.captured(1))));
        if (!shared)
            return shared;
        text = QString(*text).replace(mark.captured(), *shared);
    }
    return text;
}

static void tell(const Trouble &trouble)
{
    std::fputs(qPrintable(u"prelt-guides: "_s + trouble.what.arguments.join(u": "_s) + u'\n'), stderr);
}

static bool make(const QString &source, const QDir &folder)
{
    const Result<QString> text = withShared(source);
    if (!text) {
        tell(text.trouble());
        return false;
    }
    const QString target = folder.filePath(QFileInfo(source).completeBaseName() + u".pdf"_s);
    const Result<Done> made = writePdf(guideText(*text), titleOf(*text), target);
    if (!made)
        tell(made.trouble());
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
