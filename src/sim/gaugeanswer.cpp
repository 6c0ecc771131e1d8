#include "gaugeanswer.h"

#include "phoneprofile.h"

#include <span>

using namespace Qt::StringLiterals;

namespace {

struct Property
{
    QLatin1StringView key;
    QLatin1StringView healthy;
    QLatin1StringView worn;
};

constexpr auto kNominal = "nominal-capacity"_L1;

constexpr Property kGauge[] = {
    {"cycle-count"_L1, "512"_L1, "1093"_L1},
    {"charge-percentage"_L1, "87"_L1, "87"_L1},
    {"design-capacity"_L1, "1810mAh"_L1, "1810mAh"_L1},
    {kNominal, "1715mAh"_L1, "1267mAh"_L1},
    {"voltage"_L1, "4123mV"_L1, "4123mV"_L1},
    {"current"_L1, "-215mA"_L1, "-215mA"_L1},
    {"temperature"_L1, "28C"_L1, "28C"_L1},
};

QStringList lines(const PhoneProfile &profile, std::span<const Property> properties)
{
    QStringList told;
    for (const Property &property : properties) {
        if (property.key != kNominal || tellsCapacity(profile.model))
            told.append(u"%1: \"%2\""_s.arg(property.key, profile.wornBattery ? property.worn : property.healthy));
    }
    return told;
}

} // namespace

bool tellsCapacity(const QString &model)
{
    return model != "IP 6"_L1 && model != "IP 6 Plus"_L1;
}

QStringList batteryLines(const PhoneProfile &profile)
{
    return lines(profile, std::span(kGauge).first(2));
}

QStringList gaugeLines(const PhoneProfile &profile)
{
    return QStringList{u"GasGauge properties:"_s} + lines(profile, kGauge);
}
