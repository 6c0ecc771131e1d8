#include "storefile.h"

#include "storetrouble.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>

using namespace Qt::StringLiterals;

QString storeAddress(const QString &path, FileMode mode)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    // A drive letter needs a slash before it; a network share brings its own two.
    const QString rooted = absolute.startsWith(u'/') ? absolute : u'/' + absolute;
    return u"file://"_s + QString::fromLatin1(QUrl::toPercentEncoding(rooted, "/:")) +
           (mode == FileMode::ReadOnly ? u"?mode=ro"_s : u"?mode=rw"_s);
}

namespace {

// The journal grows with every board; a file beyond this would only fill the memory.
constexpr qint64 kLargest = 1024LL * 1024 * 1024;

} // namespace

std::optional<Trouble> troubleWithPath(const QString &path)
{
    const QFileInfo file(path);
    if (file.exists())
        return {};
    if (path.contains(QChar::ReplacementCharacter))
        return storeTrouble(u"STORE_FAILED"_s, path,
                            u"the name of the folder is no UTF-8; look at --home and PRELT_HOME"_s);
    if (!file.isSymLink())
        return {};
    return storeTrouble(u"STORE_FAILED"_s, path,
                        u"is a link to %1, which is not there"_s.arg(QDir::toNativeSeparators(file.symLinkTarget())));
}

std::optional<Trouble> troubleWithFile(const QString &path)
{
    const QFileInfo file(path);
    if (const std::optional<Trouble> broken = troubleWithPath(path))
        return broken;
    if (!file.exists())
        return Trouble{{u"STORE_MISSING"_s, {path}}};
    if (!file.isFile())
        return storeTrouble(u"STORE_FAILED"_s, path, file.isDir() ? u"is a folder"_s : u"is not a file"_s);
    if (!file.isReadable())
        return storeTrouble(u"STORE_FAILED"_s, path, u"permission denied"_s);
    if (file.size() > kLargest)
        return storeTrouble(u"STORE_FOREIGN"_s, path, u"the file is far too large for a store"_s);
    return {};
}
