#include "chipscreens.h"

#include "acornreading.h"
#include "models.h"
#include "selftest.h"
#include "tigrisreading.h"
#include "tristarreading.h"

using namespace Qt::StringLiterals;

TristarScreen::TristarScreen(Session &session, QObject *parent)
    : ChipScreen(session, {u"Tristar"_s, u"10"_s, kSelfTest, readTristar}, parent)
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
                  .command = kSelfTest,
                  .read = readAcorn,
                  .opening = Opening::Waits,
                  .fits = hasOledPanel,
                  .refusal = {u"SOMENTE_X"_s},
                  .otherScreen = u"Chestnut"_s,
                  .reporting = Reporting::Offered},
                 parent)
{
}
