#include "intoplace.h"

#include "storetrouble.h"

#include <QFile>
#include <QFileInfo>

#include <filesystem>

using namespace Qt::StringLiterals;

// A second name for the finished file is the one move that cannot overwrite; where the disk knows no such names, a
// careful renaming has to do.
Result<Done> moveIntoPlace(const QString &finished, const QString &path)
{
    const std::filesystem::path from = QFileInfo(finished).filesystemAbsoluteFilePath();
    const std::filesystem::path to = QFileInfo(path).filesystemAbsoluteFilePath();
    std::error_code error;
    std::filesystem::create_hard_link(from, to, error);
    if (!error)
        return Done{};
    if (error == std::errc::file_exists)
        return storeTrouble(u"STORE_EXISTS"_s, path, {});
    QFile file(finished);
    if (!file.rename(path))
        return storeTrouble(u"STORE_FAILED"_s, path, file.errorString());
    return Done{};
}
