#include "pmuscreen.h"

#include "pmureading.h"

PMUScreen::PMUScreen(Session &session, QObject *parent) : RailScreen(session, pmuTraits(), parent)
{
    connect(this, &Screen::judged, this, [this] { m_toldRule = input().rule; });
}

void PMUScreen::PorcTolerancia_Change(const QString &text)
{
    input().rule = Rule::within(toleranceOf(text));
    GeraGrid();
}

void PMUScreen::PorcTolerancia_LostFocus()
{
    if (hasReading() && !isReading() && m_toldRule != input().rule)
        emit judged();
}
