#include "seeds.h"

#include "csv.h"

#include <QFile>

using namespace Qt::StringLiterals;

// A static library drops resources that nothing names. The macro must stand outside of any namespace.
static void keepSeeds()
{
    Q_INIT_RESOURCE(seeds);
}

QString SeedTable::cell(const QStringList &row, QStringView column) const
{
    return row.value(columns.indexOf(column));
}

SeedTable seedTable(const QString &name)
{
    keepSeeds();
    QFile file(u":/prelt/seed/%1.csv"_s.arg(name));
    [[maybe_unused]] const bool opened = file.open(QIODevice::ReadOnly);
    Q_ASSERT(opened);
    const std::optional<QList<QStringList>> records = csvRecords(QString::fromUtf8(file.readAll()));
    Q_ASSERT(opened && records && !records->isEmpty());
    return {records->first(), records->mid(1)};
}
