#include "storetrouble.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

struct EngineCode
{
    int code;
    QLatin1StringView key;
};

constexpr EngineCode kCodes[] = {
    {5, "STORE_LOCKED"_L1},   {6, "STORE_LOCKED"_L1}, {8, "STORE_READ_ONLY"_L1},
    {11, "STORE_DAMAGED"_L1}, {13, "STORE_FULL"_L1},  {26, "STORE_DAMAGED"_L1},
};

// The engine tells the kind of an error in the low byte; the rest is detail.
QString keyFor(const QSqlError &error)
{
    const int code = error.nativeErrorCode().toInt() & 0xff;
    for (const EngineCode &row : kCodes)
        if (row.code == code)
            return row.key;
    return u"STORE_FAILED"_s;
}

QString reasonOf(const QSqlError &error)
{
    return error.databaseText().isEmpty() ? error.driverText() : error.databaseText();
}

} // namespace

Trouble storeTrouble(const QString &key, const QString &path, const QString &reason)
{
    return {{key, {QDir::toNativeSeparators(path), reason}}, {}};
}

Trouble storeTrouble(const QSqlError &error, const QString &path)
{
    return storeTrouble(keyFor(error), path, reasonOf(error));
}

Trouble toldOf(const QString &path, const Trouble &trouble)
{
    return storeTrouble(trouble.what.key, path, trouble.what.arguments.value(1));
}
