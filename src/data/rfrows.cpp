#include "rfrows.h"

#include "queries.h"

#include <QSqlError>

using namespace Qt::StringLiterals;

Result<QList<RfRow>> rfRows(const Store &store, const QString &model, const QString &tipo)
{
    Result<QSqlQuery> query = store.run(kRfRows, {{u":model"_s, model}, {u":kind"_s, tipo}});
    if (!query)
        return query.trouble();
    QList<RfRow> rows;
    while (query->next())
        rows.append({query->value(u"Malha"_s).toString(), query->value(u"Componente"_s).toString(),
                     query->value(u"Valor"_s).toString(), query->value(u"Source"_s).toString(),
                     query->value(u"Confidence"_s).toString()});
    if (query->lastError().isValid())
        return store.trouble(*query);
    return rows;
}
