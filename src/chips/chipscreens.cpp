#include "chipscreens.h"

#include "acornreading.h"
#include "models.h"
#include "tigrisreading.h"
#include "tristarreading.h"

using namespace Qt::StringLiterals;

TristarScreen::TristarScreen(Session &session, QObject *parent)
    : ChipScreen(session, {u"Tristar"_s, u"10"_s, u"pmuadc --read all"_s, readTristar}, parent)
{
}

TigrisScreen::TigrisScreen(Session &session, QObject *parent)
    : ChipScreen(
          session,
          {.name = u"Tigris"_s, .code = u"9"_s, .command = kTigrisCommand, .read = readTigris, .log = ReplyLog::Open},
          parent)
{
}

AcornScreen::AcornScreen(Session &session, QObject *parent)
    : ChipScreen(session,
                 {.name = u"Acorn"_s,
                  .code = u"12"_s,
                  .command = u"pmuadc --read all"_s,
                  .read = readAcorn,
                  .opening = Opening::Waits,
                  .fits = hasOledPanel,
                  .refusal = {u"SOMENTE_X"_s},
                  .otherScreen = u"Chestnut"_s,
                  .reporting = Reporting::Offered},
                 parent)
{
}
