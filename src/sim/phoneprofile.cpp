#include "phoneprofile.h"

#include "checkanswer.h"
#include "chipoutputs.h"
#include "gaugeanswer.h"
#include "healthyrails.h"
#include "models.h"
#include "pmuoutputs.h"
#include "scatter.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

struct ModelNumber
{
    QLatin1StringView model;
    QLatin1StringView number;
};

constexpr ModelNumber kNumbers[] = {
    {"IP 6"_L1, "A1586"_L1},       {"IP 6 Plus"_L1, "A1524"_L1}, {"IP 6s"_L1, "A1688"_L1},
    {"IP 6s Plus"_L1, "A1687"_L1}, {"IP 7"_L1, "A1660"_L1},      {"IP 7 Plus"_L1, "A1661"_L1},
    {"IP 8"_L1, "A1863"_L1},       {"IP 8 Plus"_L1, "A1864"_L1}, {"IP X"_L1, "A1865"_L1},
};

/// A fault as it was typed: "ldo2=1200", "drop@1200", "crlf".
struct Fault
{
    QString name;
    QString value;
};

struct FaultRow
{
    QLatin1StringView name;
    QLatin1StringView form;
    bool (*apply)(PhoneProfile &, const QString &value);
};

bool setModelNumber(PhoneProfile &profile, const QString &value)
{
    profile.modelNumber = value;
    return !value.isEmpty();
}

bool setSerial(PhoneProfile &profile, const QString &value)
{
    profile.serial = value == "none"_L1 ? QString() : value.toUpper();
    return !value.isEmpty();
}

bool setPrompt(PhoneProfile &profile, const QString &value)
{
    profile.splitPrompt = value.compare("split"_L1, Qt::CaseInsensitive) == 0;
    return profile.splitPrompt;
}

bool setDrop(PhoneProfile &profile, const QString &value)
{
    bool isNumber = false;
    const int bytes = value.toInt(&isNumber);
    profile.dropAt = bytes;
    return isNumber && bytes >= 0;
}

bool setSilent(PhoneProfile &profile, const QString &value)
{
    profile.silent = true;
    return value.isEmpty();
}

bool setCrlf(PhoneProfile &profile, const QString &value)
{
    profile.crlf = true;
    return value.isEmpty();
}

bool setGarbage(PhoneProfile &profile, const QString &value)
{
    profile.garbage = true;
    return value.isEmpty();
}

bool setBattery(PhoneProfile &profile, const QString &value)
{
    profile.wornBattery = value == "worn"_L1;
    return profile.wornBattery;
}

bool setPortChip(PhoneProfile &profile, const QString &value)
{
    profile.portChipAnswers = value != "off"_L1;
    return !profile.portChipAnswers;
}

constexpr FaultRow kFaults[] = {
    {"model"_L1, "model=TEXT"_L1, setModelNumber}, {"serial"_L1, "serial=TEXT|none"_L1, setSerial},
    {"prompt"_L1, "prompt=split"_L1, setPrompt},   {"drop"_L1, "drop@BYTES"_L1, setDrop},
    {"silent"_L1, "silent"_L1, setSilent},         {"crlf"_L1, "crlf"_L1, setCrlf},
    {"garbage"_L1, "garbage"_L1, setGarbage},      {"battery"_L1, "battery=worn"_L1, setBattery},
    {"tristar"_L1, "tristar=off"_L1, setPortChip},
};

Fault faultFrom(const QString &text)
{
    static const QRegularExpression sign(u"[=@]"_s);
    return {text.section(sign, 0, 0).trimmed().toLower(), text.section(sign, 1).trimmed()};
}

/// The value that a rail prints: millivolts or milliamperes, "off" or "timeout".
std::optional<QString> railToken(const QString &value)
{
    if (value == "timeout"_L1)
        return value;
    if (value == "off"_L1)
        return valueToken(0.0);
    bool isNumber = false;
    const double milli = value.toDouble(&isNumber);
    return isNumber && std::isfinite(milli) ? std::optional(valueToken(milli)) : std::nullopt;
}

QString labelNamed(const PhoneProfile &profile, const QString &name)
{
    const QString label = pmuLabel(name);
    return profile.rails.contains(label) ? label : chipLabel(profile, name);
}

/// Power on USB that is too little to count as present.
constexpr auto kLowBus = "4300.0000"_L1;

bool setRail(PhoneProfile &profile, const Fault &fault)
{
    const QString value = fault.value.toLower();
    const QString label = labelNamed(profile, fault.name);
    if (label.isEmpty())
        return false;
    if (value == "missing"_L1)
        return profile.rails.remove(label) == 1;
    const bool isLowBus = value == "low"_L1 && fault.name.contains("vbus"_L1);
    const std::optional<QString> token = isLowBus ? QString(kLowBus) : railToken(value);
    if (token)
        profile.rails[label] = *token;
    return token.has_value();
}

bool apply(PhoneProfile &profile, const Fault &fault)
{
    const auto row = std::ranges::find(kFaults, fault.name, &FaultRow::name);
    if (row != std::end(kFaults))
        return row->apply(profile, fault.value);
    return breakPart(profile, fault.name, fault.value) || setRail(profile, fault);
}

QStringList faultForms()
{
    QStringList forms;
    for (const FaultRow &row : kFaults)
        forms.append(row.form);
    return forms;
}

constexpr auto kRailForm = "RAIL=VALUE|off|timeout|missing, vbus=low"_L1;

/// The faults that a phone of this model can have, as they are typed.
QString knownFaults(const PhoneProfile &profile)
{
    QStringList outputs = pmuOutputs();
    outputs.removeIf([&](const QString &output) { return !profile.rails.contains(pmuLabel(output)); });
    const QStringList rails = outputs + chipOutputNames(profile);
    return (faultForms() + partFaults(profile)).join(", "_L1) + u", "_s + kRailForm + "; RAIL: "_L1 +
           rails.join(", "_L1);
}

Trouble unknown(const QString &part, const QString &known)
{
    return {{u"SIM_UNKNOWN"_s, {part, known}}};
}

QString modelNamed(const QString &typed)
{
    for (const QString &model : modelNames()) {
        if (model.compare(typed, Qt::CaseInsensitive) == 0)
            return model;
    }
    return {};
}

PhoneProfile healthy(const QString &model)
{
    PhoneProfile profile;
    profile.model = model;
    profile.rails = healthyRails(model);
    profile.rails.insert(healthyChips(model));
    profile.serial = "SIM0"_L1 + scatteredDigits(model, u"serial"); // a number that no phone has
    const auto row = std::ranges::find(kNumbers, model, &ModelNumber::model);
    profile.modelNumber = row == std::end(kNumbers) ? QString() : QString(row->number);
    return profile;
}

} // namespace

QString faultHelp()
{
    QStringList parts = partFaults({}); // those that every model has
    parts.append(u"i2cBUS:KEY=off (i2c1:75=off)"_s);
    return (faultForms() + parts).join(", "_L1) + u", "_s + kRailForm;
}

Result<PhoneProfile> profileFor(const QString &text)
{
    QStringList parts = text.split(u',');
    const QString typedModel = parts.takeFirst().simplified();
    const QString model = modelNamed(typedModel);
    if (model.isEmpty())
        return unknown(typedModel, modelNames().join(", "_L1));
    PhoneProfile profile = healthy(model);
    for (const QString &part : std::as_const(parts)) {
        if (!apply(profile, faultFrom(part.trimmed())))
            return unknown(part.trimmed(), knownFaults(profile));
    }
    if (profile.wornBattery && !tellsCapacity(model))
        return Trouble{{u"SIM_NO_CAPACITY"_s, {model}}};
    return profile;
}
