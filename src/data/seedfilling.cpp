#include "seedfilling.h"

#include "queries.h"
#include "seeds.h"

using namespace Qt::StringLiterals;

static Result<Done> fill(const Store &store, const SeedFilling &filling)
{
    const SeedTable table = seedTable(filling.seed);
    const QStringList columns = QString(filling.placeholders).split(u' ');
    QSqlQuery add = store.prepared(*filling.query);
    for (const QStringList &row : table.rows) {
        if (!filling.unless.isEmpty() && table.cell(row, u"confidence") == filling.unless)
            continue;
        QVariantMap values;
        for (const QString &column : columns)
            values.insert(u':' + column, table.cell(row, column));
        if (const Result<Done> added = store.rerun(add, values); !added)
            return added;
    }
    return Done{};
}

Result<Done> fillFromSeeds(const Store &store, std::span<const SeedFilling> fillings)
{
    for (const SeedFilling &filling : fillings)
        if (const Result<Done> filled = fill(store, filling); !filled)
            return filled;
    return Done{};
}
