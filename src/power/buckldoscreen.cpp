#include "buckldoscreen.h"

#include "buckldoreading.h"

using namespace Qt::StringLiterals;

BuckLdoScreen::BuckLdoScreen(Session &session, QObject *parent) : RailGridScreen(session, buckLdoTraits(), parent) {}

void BuckLdoScreen::Botao3_Click()
{
    emit screenRequested(u"PMU"_s);
}
