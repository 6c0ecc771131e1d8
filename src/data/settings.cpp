#include "settings.h"

#include "queries.h"
#include "storetrouble.h"

#include <limits>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// One column of the first row; nothing when the table is empty.
Result<std::optional<QString>> firstText(const Store &store, const Query &query, const QString &column,
                                         const QVariantMap &values = {})
{
    Result<QSqlQuery> rows = store.run(query, values);
    if (!rows)
        return rows.trouble();
    if (rows->next())
        return std::optional(rows->value(column).toString());
    if (rows->lastError().isValid())
        return store.trouble(*rows);
    return std::optional<QString>();
}

Result<QString> orEmpty(const Result<std::optional<QString>> &text)
{
    return text ? Result(text->value_or(QString())) : text.trouble();
}

/// Sets a column of a table of one row, which is added where it is missing.
Result<Done> setOnlyRow(Store &store, const Query &update, const Query &addEmpty, const QString &value)
{
    Result<Transaction> transaction = Transaction::begin(store);
    if (!transaction)
        return transaction.trouble();
    const QVariantMap values = {{u":value"_s, value}};
    Result<QSqlQuery> set = store.run(update, values);
    if (set && set->numRowsAffected() == 0) {
        set = store.run(addEmpty);
        if (set)
            set = store.run(update, values);
    }
    return set ? transaction->commit() : set.trouble();
}

} // namespace

Result<QString> combo(const Store &store, Combo which)
{
    return orEmpty(firstText(store, kCombos, u"Combo%1"_s.arg(static_cast<int>(which))));
}

Result<Done> setCombo(Store &store, Combo which, const QString &value)
{
    return setOnlyRow(store, kSetCombo[static_cast<int>(which) - 1], kAddEmptyCombos, value);
}

Result<Language> language(const Store &store)
{
    const Result<std::optional<QString>> text = firstText(store, kIdioma, u"Idioma"_s);
    if (!text)
        return text.trouble();
    if (!*text)
        return storeTrouble(u"STORE_DAMAGED"_s, store.path(), u"no row in Tools"_s);
    const uint number = (*text)->toUInt();
    return static_cast<Language>(number <= std::numeric_limits<quint8>::max() ? number : 0);
}

Result<Done> setLanguage(Store &store, Language language)
{
    return setOnlyRow(store, kSetIdioma, kAddEmptyTools, QString::number(static_cast<int>(language)));
}

Result<QString> technicianName(const Store &store)
{
    return orEmpty(firstText(store, kNome, u"Nome"_s));
}

Result<Done> setTechnicianName(Store &store, const QString &name)
{
    return setOnlyRow(store, kSetNome, kAddEmptyTools, name);
}

Result<QString> lastModel(const Store &store)
{
    return orEmpty(firstText(store, kUltimo, u"Modelo"_s));
}

Result<Done> rememberModel(Store &store, const QString &model)
{
    return setOnlyRow(store, kSetUltimo, kAddEmptyUltimo, model);
}

Result<QString> setting(const Store &store, const QString &name)
{
    return orEmpty(firstText(store, kSetting, u"Value"_s, {{u":name"_s, name}}));
}

Result<Done> setSetting(Store &store, const QString &name, const QString &value)
{
    const Result<QSqlQuery> set = store.run(kSetSetting, {{u":name"_s, name}, {u":value"_s, value}});
    return set ? Result(Done{}) : set.trouble();
}
