#include "busmap.h"

#include "modelbuses.h"
#include "seeds.h"

using namespace Qt::StringLiterals;

static Confidence confidenceNamed(const QString &word)
{
    if (word == "high"_L1)
        return Confidence::High;
    return word == "medium"_L1 ? Confidence::Medium : Confidence::Low;
}

static QList<MappedDevice> devicesOn(const QString &model, int bus)
{
    const SeedTable table = seedTable(u"i2c"_s);
    QList<MappedDevice> devices;
    for (const QStringList &row : table.rows) {
        const QString device = table.cell(row, u"i");
        if (table.cell(row, u"Aparelho") == model && device.startsWith(QString::number(bus)))
            devices.append(
                {u'0' + device.mid(1, 3), device.section(u'-', 1), confidenceNamed(table.cell(row, u"confidence"))});
    }
    return devices;
}

QList<MappedBus> mappedBuses(const QString &model)
{
    QList<MappedBus> buses;
    for (int bus = 0; bus < kBuses; ++bus)
        if (busButton(model, bus) == BusButton::Testable)
            buses.append({bus, devicesOn(model, bus), likelyFailure(model, bus)});
    return buses;
}
