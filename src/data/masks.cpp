#include "masks.h"

#include "queries.h"

#include <QSqlError>

using namespace Qt::StringLiterals;

Result<QStringList> maskTexts(const Store &store)
{
    Result<QSqlQuery> query = store.run(kMasksDescending);
    if (!query)
        return query.trouble();
    QStringList texts;
    while (query->next())
        texts.append(query->value(u"String"_s).toString());
    if (query->lastError().isValid())
        return store.trouble(*query);
    return texts;
}

Result<Done> addMask(Store &store, const QString &text)
{
    const auto added = store.run(kAddMask, {{u":text"_s, text}});
    return added ? Result(Done{}) : added.trouble();
}
