#include "storefile.h"

#include "storetrouble.h"

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

std::optional<Trouble> troubleWithFile(const QString &path)
{
    const QFileInfo file(path);
    if (!file.exists())
        return Trouble{{u"STORE_MISSING"_s, {path}}};
    if (!file.isFile())
        return storeTrouble(u"STORE_FAILED"_s, path, file.isDir() ? u"is a folder"_s : u"is not a file"_s);
    if (!file.isReadable())
        return storeTrouble(u"STORE_FAILED"_s, path, u"permission denied"_s);
    return {};
}
