#include "outrosscreen.h"

#include "chipreading.h"

using namespace Qt::StringLiterals;

OutrosScreen::OutrosScreen(Session &session, QObject *parent) : CheckScreen(session, u"Outros"_s, u"17"_s, parent) {}

void OutrosScreen::btBl_Click(int index)
{
    const MemoryTest *test = memoryTest(index);
    if (!test || isReading())
        return;
    m_index = index;
    ask({.command = test->command, .needsModel = true});
}

void OutrosScreen::btBateria_Click()
{
    emit screenRequested(u"Bateria"_s);
}

void OutrosScreen::btPanicFull_Click()
{
    openGuide(u"xPanicFull.pdf"_s);
}

Panel OutrosScreen::makeReading() const
{
    return readMemory(
        {m_index, txtDados(), hasReading(), isReading(), delivery().cut, session().model(), session().language()});
}

QMap<QString, Field> OutrosScreen::state() const
{
    QMap<QString, Field> fields = CheckScreen::state();
    fields.insert(comparatorState());
    for (const int index : {kFullMemoryTest, kFullMemoryTest + 1})
        fields[element(u"btBl", index)] = {.enabled = !isReading()};
    return fields;
}
