#include "busdevices.h"

#include "queries.h"

#include <QMap>
#include <QSqlError>

using namespace Qt::StringLiterals;

/// "1x75-Charger": the bus, the key, a dash and the name.
static BusDevice deviceFrom(const QString &text)
{
    const qsizetype dash = text.indexOf(u'-');
    return {text.left(1).toInt(), text.mid(1, 3), dash < 0 ? QString() : text.mid(dash + 1)};
}

static QString textOf(const BusDevice &device)
{
    return QString::number(device.bus) + device.key + u'-' + device.name;
}

struct Origin
{
    QString source;
    QString confidence;
};

/// Where the devices are known from, by their texts.
static Result<QMap<QString, Origin>> originsOf(const Store &store, const QString &model)
{
    Result<QSqlQuery> query = store.run(kDeviceSources, {{u":model"_s, model}});
    if (!query)
        return query.trouble();
    QMap<QString, Origin> origins;
    while (query->next())
        origins.insert(query->value(0).toString(), {query->value(1).toString(), query->value(2).toString()});
    if (query->lastError().isValid())
        return store.trouble(*query);
    return origins;
}

Result<QList<BusDevice>> busDevices(const Store &store, const QString &model)
{
    const Result<QMap<QString, Origin>> origins = originsOf(store, model);
    if (!origins)
        return origins.trouble();
    Result<QSqlQuery> query = store.run(kBusDevices, {{u":model"_s, model}, {u":bus"_s, u"%"_s}});
    if (!query)
        return query.trouble();
    QList<BusDevice> devices;
    while (query->next()) {
        const QString text = query->value(u"i"_s).toString();
        const Origin origin = origins->value(text);
        devices.append(deviceFrom(text));
        devices.last().source = origin.source;
        devices.last().confidence = origin.confidence;
    }
    if (query->lastError().isValid())
        return store.trouble(*query);
    return devices;
}

static Result<Done> replaceBus(const Store &store, const ExpectedBus &expected)
{
    const QVariantMap bus{{u":model"_s, expected.model}, {u":bus"_s, QString::number(expected.bus) + u'%'}};
    for (const Query *query : {&kDropBusDevices, &kDropBusSources})
        if (const Result<QSqlQuery> dropped = store.run(*query, bus); !dropped)
            return dropped.trouble();
    for (const BusDevice &device : expected.devices) {
        const QVariantMap row{{u":Aparelho"_s, expected.model}, {u":i"_s, textOf(device)}};
        if (const Result<QSqlQuery> added = store.run(kAddDevice, row); !added)
            return added.trouble();
        QVariantMap source = row;
        source.insert({{u":source"_s, device.source}, {u":confidence"_s, device.confidence}});
        if (const Result<QSqlQuery> added = store.run(kAddDeviceSource, source); !added)
            return added.trouble();
    }
    return Done{};
}

Result<Done> expectOnBuses(Store &store, const QList<ExpectedBus> &buses)
{
    Result<Transaction> transaction = Transaction::begin(store);
    if (!transaction)
        return transaction.trouble();
    for (const ExpectedBus &bus : buses)
        if (const Result<Done> replaced = replaceBus(store, bus); !replaced)
            return replaced;
    return transaction->commit();
}
