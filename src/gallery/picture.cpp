#include "picture.h"

#include "moduletable.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct PhoneKind
{
    QLatin1StringView name;
    QLatin1StringView screen; ///< that only this phone has; empty: every other one
    QLatin1StringView description;
};

constexpr std::array kPhones = {
    PhoneKind{"healthy"_L1, {}, "IP 6s"_L1},
    PhoneKind{"fault"_L1,
              {},
              "IP 6s,ldo2=1200,buck3=off,i2c1:75=off,battery=worn,radio0=off,nand=missing,tigris.vbus=off,"
              "chestnut.vldo1=4200,tristar=off,memory=bad,display=off"_L1},
    PhoneKind{"healthy"_L1, "Acorn"_L1, "IP X"_L1},
    PhoneKind{"fault"_L1, "Acorn"_L1, "IP X,acorn.vp=4100,acorn.vn=off"_L1},
};

struct LanguageName
{
    Language language;
    QLatin1StringView name;
};

constexpr std::array kLanguages = {LanguageName{Language::Portuguese, "pt"_L1},
                                   LanguageName{Language::English, "en"_L1}, LanguageName{Language::Spanish, "es"_L1}};

struct ThemeName
{
    ThemeChoice theme;
    QLatin1StringView name;
};

constexpr std::array kThemes = {ThemeName{ThemeChoice::Light, "light"_L1}, ThemeName{ThemeChoice::Dark, "dark"_L1}};

bool shows(const PhoneKind &phone, const Module &module)
{
    const bool hasPhoneOfItsOwn = std::ranges::find(kPhones, module.name, &PhoneKind::screen) != kPhones.end();
    return hasPhoneOfItsOwn ? phone.screen == module.name : phone.screen.isEmpty();
}

QList<Picture> picturesOf(const LanguageName &language, const ThemeName &theme)
{
    QList<Picture> pictures;
    for (const PhoneKind &phone : kPhones) {
        for (const Module &module : modules()) {
            if (shows(phone, module))
                pictures.append({module.name, phone.description, language.language, theme.theme,
                                 QStringList{language.name, theme.name, phone.name, module.name}.join(u'-')});
        }
    }
    return pictures;
}

} // namespace

QList<Picture> allPictures()
{
    QList<Picture> pictures;
    for (const LanguageName &language : kLanguages)
        for (const ThemeName &theme : kThemes)
            pictures += picturesOf(language, theme);
    return pictures;
}
