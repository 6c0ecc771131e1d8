#include "settingkeys.h"

#include "models.h"
#include "queries.h"
#include "settings.h"

#include <QFileInfo>
#include <QUrl>

#include <algorithm>
#include <array>
#include <variant>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kSwitch = "on off"_L1;
constexpr auto kLanguages = "pt en es"_L1;
constexpr auto kVoltDecimals = "1 2 3"_L1;
constexpr auto kMilliDecimals = "0 1 2 3"_L1;

/// What a value may be, apart from a choice of words.
enum class Form
{
    Address, ///< of the web, or empty
    Line,    ///< one line of text, or empty
    Percent, ///< 1 to 99, or empty
    File,    ///< one that is there, or empty
    Model    ///< one of the nine
};

using Accepted = std::variant<QLatin1StringView, Form>;

/// Settings that do not live in the added table.
enum class Place
{
    Language,
    Name,
    Model
};

/// Where a setting lives: under its own name in the added table (nothing), or in a given one.
using Home = std::variant<std::monostate, Combo, Place>;

struct Key
{
    QLatin1StringView name;
    Accepted accepted;
    Home home = {};
};

constexpr Key kKeys[] = {
    {"language"_L1, kLanguages, Place::Language},
    {"name"_L1, Form::Line, Place::Name},
    {"model"_L1, Form::Model, Place::Model},
    {"speed"_L1, "G1 G2"_L1, Combo::LinkSpeed},
    {"vcore-volts"_L1, kVoltDecimals, Combo::VCoreVolts},
    {"vcore-amps"_L1, kMilliDecimals, Combo::VCoreMilli},
    {"buckldo-volts"_L1, kVoltDecimals, Combo::BuckLdoVolts},
    {"buckldo-amps"_L1, kMilliDecimals, Combo::BuckLdoMilli},
    {"pmu-volts"_L1, kVoltDecimals, Combo::PmuVolts},
    {"pmu-amps"_L1, kMilliDecimals, Combo::PmuMilli},
    {kBatteryWorn, Form::Percent},
    {"auto-reconnect"_L1, kSwitch},
    {"maintenance"_L1, kSwitch},
    {"help-video"_L1, Form::Address},
    {"probe-address"_L1, Form::Address},
    {"report-host"_L1, Form::Address},
    {"logo"_L1, Form::File},
};

const Key *keyNamed(const QString &name)
{
    const auto found = std::ranges::find(kKeys, name, &Key::name);
    return found == std::end(kKeys) ? nullptr : found;
}

Trouble unknown(const QString &name)
{
    QStringList names;
    for (const Key &key : kKeys)
        names += key.name;
    return {{u"SETTING_UNKNOWN"_s, {name, names.join(", "_L1)}}};
}

bool isLine(const QString &value)
{
    constexpr qsizetype kLongest = 120;
    return value.size() <= kLongest && std::ranges::all_of(value, [](QChar letter) { return letter.isPrint(); });
}

bool isPercent(const QString &value)
{
    constexpr int kMost = 99;
    const bool isShort =
        value.size() <= 2 && std::ranges::all_of(value, [](QChar c) { return c >= u'0' && c <= u'9'; });
    return value.isEmpty() || (isShort && value.toInt() >= 1 && value.toInt() <= kMost);
}

bool isAddress(const QString &value)
{
    const QUrl url(value, QUrl::StrictMode);
    const bool web = url.scheme() == "http"_L1 || url.scheme() == "https"_L1;
    return value.isEmpty() || (web && url.isValid() && !url.host().isEmpty());
}

bool fits(const Accepted &accepted, const QString &value)
{
    if (const auto *words = std::get_if<QLatin1StringView>(&accepted))
        return QString(*words).split(u' ').contains(value);
    switch (std::get<Form>(accepted)) {
    case Form::Address:
        return isAddress(value);
    case Form::Line:
        return isLine(value);
    case Form::Percent:
        return isPercent(value);
    case Form::File:
        return value.isEmpty() || QFileInfo(value).isFile();
    case Form::Model:
        return modelNames().contains(value);
    }
    return false;
}

QString described(const Accepted &accepted)
{
    if (const auto *words = std::get_if<QLatin1StringView>(&accepted))
        return QString(*words).replace(u' ', ", "_L1);
    switch (std::get<Form>(accepted)) {
    case Form::Address:
        return u"http://… https://…"_s;
    case Form::Line:
        return u"… (≤ 120)"_s;
    case Form::Percent:
        return u"1 … 99"_s;
    case Form::File:
        return u"PNG, JPEG"_s;
    case Form::Model:
        return modelNames().join(", "_L1);
    }
    return {};
}

Result<QString> languageWord(const Store &store)
{
    const Result<Language> number = language(store);
    if (!number)
        return number.trouble();
    return QString(kLanguages).split(u' ').value(static_cast<int>(*number) - 1);
}

Result<QString> read(const Store &store, const Key &key)
{
    if (const auto *which = std::get_if<Combo>(&key.home))
        return combo(store, *which);
    if (std::holds_alternative<std::monostate>(key.home))
        return setting(store, key.name);
    switch (std::get<Place>(key.home)) {
    case Place::Language:
        return languageWord(store);
    case Place::Name:
        return technicianName(store);
    case Place::Model:
        return lastModel(store);
    }
    return QString();
}

Result<Done> write(Store &store, const Key &key, const QString &value)
{
    if (const auto *which = std::get_if<Combo>(&key.home))
        return setCombo(store, *which, value);
    if (std::holds_alternative<std::monostate>(key.home))
        return setSetting(store, key.name, value);
    switch (std::get<Place>(key.home)) {
    case Place::Language:
        return setLanguage(store, static_cast<Language>(QString(kLanguages).split(u' ').indexOf(value) + 1));
    case Place::Name:
        return setTechnicianName(store, value);
    case Place::Model:
        return rememberModel(store, value);
    }
    return Done{};
}

} // namespace

Result<QList<NamedSetting>> namedSettings(const Store &store)
{
    QList<NamedSetting> all;
    for (const Key &key : kKeys) {
        const Result<QString> value = read(store, key);
        if (!value)
            return value.trouble();
        all += {key.name, *value};
    }
    return all;
}

Result<QString> namedSetting(const Store &store, const QString &name)
{
    const Key *key = keyNamed(name);
    return key ? read(store, *key) : Result<QString>(unknown(name));
}

Result<QString> checkedSetting(const Store &store, const QString &name)
{
    const Result<QString> value = namedSetting(store, name);
    const std::optional<Trouble> wrong = value && !value->isEmpty() ? settingTrouble(name, *value) : std::nullopt;
    return wrong ? *wrong : value;
}

std::optional<Trouble> settingTrouble(const QString &name, const QString &value)
{
    const Key *key = keyNamed(name);
    if (!key)
        return unknown(name);
    if (key->accepted == Accepted(Form::File) && !fits(key->accepted, value))
        return Trouble{{u"SETTING_NO_FILE"_s, {name, value, described(key->accepted)}}};
    if (!fits(key->accepted, value))
        return Trouble{{u"SETTING_INVALID"_s, {name, value, described(key->accepted)}}};
    return {};
}

Result<Done> setNamedSetting(Store &store, const QString &name, const QString &value)
{
    if (const std::optional<Trouble> wrong = settingTrouble(name, value))
        return *wrong;
    return write(store, *keyNamed(name), value);
}
