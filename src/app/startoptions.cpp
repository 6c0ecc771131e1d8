#include "startoptions.h"

#include "moduletable.h"

#include <QCommandLineParser>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

static constexpr int kWrongUsage = 2;

[[noreturn]] static void complain(const QString &what)
{
    std::fputs(qPrintable(u"tavimo-prelt: "_s + what + u'\n'), stderr);
    std::exit(kWrongUsage);
}

static QString screenName(const QString &typed)
{
    if (typed.isEmpty())
        return {};
    for (const Module *module : {moduleOfCommand(typed), moduleNamed(typed)})
        if (module)
            return module->name;
    QStringList names;
    for (const Module &module : modules())
        if (!module.command.isEmpty())
            names.append(module.command);
    complain(u"no screen \"%1\"; the screens are: %2"_s.arg(typed, names.join(", "_L1)));
}

static std::optional<ThemeChoice> themeChoice(const QString &typed)
{
    if (typed.isEmpty())
        return {};
    if (typed == "light"_L1)
        return ThemeChoice::Light;
    if (typed == "dark"_L1)
        return ThemeChoice::Dark;
    complain(u"no theme \"%1\"; the themes are: light, dark"_s.arg(typed));
}

StartOptions startOptions(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Reads and judges phone logic boards over a serial Box."_s);
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({{u"home"_s, u"folder of the store"_s, u"DIR"_s},
                       {u"port"_s, u"COMn, n, a device path, or sim:MODEL[,fault...]"_s, u"PORT"_s},
                       {u"connect"_s, u"connect at once"_s},
                       {u"screen"_s, u"open this screen"_s, u"NAME"_s},
                       {u"read"_s, u"start the screen's reading once the phone is connected"_s},
                       {u"log"_s, u"open the exchange log"_s},
                       {u"theme"_s, u"light or dark (else as last chosen)"_s, u"THEME"_s}});
    if (!parser.parse(arguments))
        complain(parser.errorText());
    if (parser.isSet(u"help"_s))
        parser.showHelp();
    if (parser.isSet(u"version"_s))
        parser.showVersion();
    return {parser.value(u"home"_s),
            parser.value(u"port"_s),
            parser.isSet(u"connect"_s),
            screenName(parser.value(u"screen"_s)),
            parser.isSet(u"read"_s),
            parser.isSet(u"log"_s),
            themeChoice(parser.value(u"theme"_s))};
}
