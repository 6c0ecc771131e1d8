#include "healthyrails.h"

#include "pmuoutputs.h"
#include "scatter.h"
#include "seeds.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

constexpr double kVoltScatter = 0.008;
constexpr double kCurrentScatter = 0.25;

/// One row of the seed table, as far as a value hangs on it.
struct Rail
{
    QString output;
    QString net;
    QString chip;
    QString nominal;
    QString shownNominal;
};

struct Typical
{
    QLatin1StringView part;
    double milli;
};

// Supplies that follow the load, by a part of their net's name.
constexpr Typical kLoads[] = {{"SRAM"_L1, 802.0}, {"CPU"_L1, 632.5}, {"SOC"_L1, 725.0}};

// Currents by the start of the output's name; the two watched LDOs draw little on every healthy phone.
constexpr Typical kCurrents[] = {
    {"ildo3"_L1, 1.2}, {"ildo7"_L1, 1.2}, {"ibuck"_L1, 96.0}, {"ildo"_L1, 18.0}, {"ibuf"_L1, 0.6},
};

constexpr double kOtherVoltage = 1000.0;

/// The graphics core sleeps in diagnostics mode, nothing is plugged into the accessory port, and what is not
/// connected carries nothing.
bool isOff(const Rail &rail)
{
    return rail.chip == "GPU"_L1 || rail.chip == "ACC"_L1 || rail.net.contains("NC_"_L1);
}

/// "PP1V8_VA" is 1800 mV.
double milliInName(const QString &net)
{
    static const QRegularExpression volts(u"(\\d)V(\\d{1,2})"_s);
    const QRegularExpressionMatch match = volts.match(net);
    return match.hasMatch() ? QString(match.captured(1) + u'.' + match.captured(2)).toDouble() * 1000.0 : kOtherVoltage;
}

double milliUnderLoad(const QString &net)
{
    for (const Typical &load : kLoads) {
        if (net.contains(load.part))
            return load.milli;
    }
    return kOtherVoltage;
}

double typicalVoltage(const Rail &rail)
{
    if (const double volts = rail.nominal.toDouble(); volts > 0)
        return volts * 1000.0;
    if (isOff(rail))
        return 0.0;
    return rail.shownNominal == "VAR"_L1 ? milliUnderLoad(rail.net) : milliInName(rail.net);
}

/// A part that ends in a digit is one output's whole name, any other the start of many.
bool names(const Typical &typical, const QString &output)
{
    const bool isOne = QChar(typical.part.back()).isDigit();
    return isOne ? output == typical.part : output.startsWith(typical.part);
}

double typicalCurrent(const Rail &rail)
{
    if (isOff(rail))
        return 0.0;
    for (const Typical &current : kCurrents) {
        if (names(current, rail.output))
            return current.milli;
    }
    return 0.0;
}

QString healthyToken(const QString &model, const Rail &rail)
{
    const bool current = isCurrent(rail.output);
    const double typical = current ? typicalCurrent(rail) : typicalVoltage(rail);
    const double share = current ? kCurrentScatter : kVoltScatter;
    return valueToken(typical * (1.0 + share * scatter(model, rail.output)));
}

} // namespace

QString valueToken(double value)
{
    return QString::number(value, 'f', 4);
}

static Rail railAt(const SeedTable &table, const QStringList &row)
{
    return {.output = outputOfRow(table.cell(row, u"Orig")),
            .net = table.cell(row, u"Malha"),
            .chip = table.cell(row, u"Ci"),
            .nominal = table.cell(row, u"RefV"),
            .shownNominal = table.cell(row, u"REF")};
}

double typicalMillivolts(const QString &model, const QString &output)
{
    const SeedTable table = seedTable(u"master"_s);
    for (const QStringList &row : table.rows) {
        if (table.cell(row, u"Modelo") == model && outputOfRow(table.cell(row, u"Orig")) == output)
            return typicalVoltage(railAt(table, row));
    }
    return 0.0;
}

QMap<QString, QString> healthyRails(const QString &model)
{
    const SeedTable table = seedTable(u"master"_s);
    QMap<QString, QString> tokens;
    for (const QStringList &row : table.rows) {
        if (table.cell(row, u"Modelo") != model)
            continue;
        const Rail rail = railAt(table, row);
        tokens.insert(pmuLabel(rail.output), healthyToken(model, rail));
    }
    return tokens;
}
