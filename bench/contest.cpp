#include "contest.h"

#include <QCommandLineParser>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

void giveUp(const QString &why)
{
    std::fputs(qPrintable(QCoreApplication::applicationName() + ": "_L1 + why + u'\n'), stderr);
    std::exit(1);
}

Contest contestFor(const QCoreApplication &application)
{
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({{u"ours"_s, u"our window"_s, u"COMMAND"_s},
                       {u"ours-on-port"_s, u"our window on {device}"_s, u"COMMAND"_s},
                       {u"peer"_s, u"the other's window"_s, u"COMMAND"_s},
                       {u"peer-on-port"_s, u"the other's window on {device}"_s, u"COMMAND"_s},
                       {u"bare"_s, u"the least window"_s, u"COMMAND"_s},
                       {u"runs"_s, u"starts of each"_s, u"N"_s, u"11"_s}});
    parser.process(application);
    return {parser.value(u"ours"_s),         parser.value(u"ours-on-port"_s), parser.value(u"peer"_s),
            parser.value(u"peer-on-port"_s), parser.value(u"bare"_s),         qMax(1, parser.value(u"runs"_s).toInt())};
}
