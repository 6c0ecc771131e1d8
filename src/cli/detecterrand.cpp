#include "detecterrand.h"

#include "json.h"
#include "terminal.h"

using namespace Qt::StringLiterals;

void DetectErrand::start()
{
    Errand::start();
    connectToPhone();
}

void DetectErrand::connectedToPhone()
{
    const bool known = session().isModelKnown();
    if (options().json)
        printOut(document({{u"model"_s, known ? session().model() : QString()}, {u"record"_s, session().lbModelo()}}));
    else if (known)
        printOut(session().model() + u'\n');
    if (!known && messages().isEmpty())
        printError(oneLine({{u"MSG_SELECIONE_MODELO"_s}}, language()));
    finish(known ? ExitCode::Good : ExitCode::Incomplete);
}
