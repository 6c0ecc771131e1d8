#include "sourcetree.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

QString contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The words after a keyword of a CMake call, up to the next keyword.
static QStringList wordsAfter(const QString &keyword, const QStringList &words)
{
    static const QStringList kKeywords{u"SOURCES"_s, u"LINKS"_s};
    QStringList found;
    for (qsizetype i = words.indexOf(keyword) + 1; i > 0 && i < words.size() && !kKeywords.contains(words[i]); ++i)
        found << words[i];
    return found;
}

QList<Target> targetsIn(const QString &cmakeList, const QString &folder)
{
    static const QRegularExpression comment(u"#[^\n]*"_s);
    static const QRegularExpression call(u"prelt_(?:layer|program)\\(([^)]*)\\)"_s);
    static const QRegularExpression blank(u"\\s+"_s);
    QList<Target> targets;
    QString list = cmakeList;
    auto calls = call.globalMatch(list.remove(comment));
    while (calls.hasNext()) {
        const QStringList words = calls.next().captured(1).split(blank, Qt::SkipEmptyParts);
        targets << Target{words.value(0), folder, wordsAfter(u"SOURCES"_s, words), wordsAfter(u"LINKS"_s, words)};
    }
    return targets;
}

QStringList headersNamedIn(const QString &source)
{
    static const QRegularExpression line(u"^\\s*#\\s*include\\s*[<\"]([^>\"]+)[>\"]"_s,
                                         QRegularExpression::MultilineOption);
    QStringList headers;
    auto lines = line.globalMatch(source);
    while (lines.hasNext())
        headers << lines.next().captured(1);
    return headers;
}

/// The target that lists a file, or the source of the same name. A header that stands alone, or one of the sources
/// that each serve one system ("hangup_unix.cpp"), belongs to the first target of its folder, the one without widgets.
static QString owner(const QString &file, const QList<Target> &targets)
{
    const QFileInfo info(file);
    const bool mayStandAlone = info.suffix() == u"h" || info.completeBaseName().contains(u'_');
    QString alone;
    for (const Target &target : targets) {
        if (target.folder != info.path())
            continue;
        if (target.sources.contains(info.fileName()) || target.sources.contains(info.completeBaseName() + u".cpp"_s))
            return target.name;
        if (alone.isEmpty() && mayStandAlone)
            alone = target.name;
    }
    return alone;
}

static QStringList filesBelow(const QString &root, const QStringList &patterns)
{
    QStringList files;
    QDirIterator walk(root, patterns, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext())
        files << QDir(root).relativeFilePath(walk.next());
    files.sort();
    return files;
}

SourceTree readTree(const QString &root)
{
    SourceTree tree;
    for (const QString &list : filesBelow(root, {u"CMakeLists.txt"_s}))
        tree.targets << targetsIn(contents(root + u'/' + list), QFileInfo(list).path());
    tree.files = filesBelow(root, {u"*.h"_s, u"*.cpp"_s});
    for (const QString &file : std::as_const(tree.files)) {
        const QString target = owner(file, tree.targets);
        if (target.isEmpty())
            continue;
        tree.ownerOf.insert(file, target);
        for (const QString &header : headersNamedIn(contents(root + u'/' + file)))
            tree.includes << Include{target, file, header};
    }
    return tree;
}

QString SourceTree::ownerOfHeader(const QString &header) const
{
    for (const QString &file : files) {
        if (QFileInfo(file).fileName() == QFileInfo(header).fileName())
            return ownerOf.value(file);
    }
    return {};
}
