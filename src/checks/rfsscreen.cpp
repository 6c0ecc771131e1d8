#include "rfsscreen.h"

#include "chipreading.h"

using namespace Qt::StringLiterals;

RFsScreen::RFsScreen(Session &session, QObject *parent) : CheckScreen(session, u"RFs"_s, u"2"_s, parent) {}

void RFsScreen::run(int index, RadioAction action)
{
    if (isReading())
        return;
    m_input.radio = index;
    m_input.action = action;
    const Radio &asked = radio(index);
    ask({.command = asked.commands.at(static_cast<std::size_t>(action)),
         .needsModel = asked.isMissingOnOldest,
         .refuses = asked.isMissingOnOldest ? isSixFamily : nullptr});
}

/// What goes off is not waited for.
void RFsScreen::askBegan()
{
    if (m_input.action == RadioAction::Off)
        m_input.states.at(static_cast<std::size_t>(m_input.radio)) = RadioState::Off;
}

void RFsScreen::askEnded()
{
    if (m_input.action == RadioAction::On)
        m_input.states.at(static_cast<std::size_t>(m_input.radio)) =
            cameUp(m_input.radio, txtDados()) ? RadioState::Up : RadioState::Silent;
}

void RFsScreen::forget()
{
    m_input.states = {};
    CheckScreen::forget();
}

void RFsScreen::btTensoesRF_Click()
{
    emit screenRequested(u"RFs_Esq"_s);
}

Panel RFsScreen::makeReading() const
{
    RadioInput input = m_input;
    input.reply = txtDados();
    input.isWhole = hasReading();
    input.cut = delivery().cut;
    input.language = session().language();
    return readRadio(input);
}

QMap<QString, Field> RFsScreen::state() const
{
    QMap<QString, Field> fields = CheckScreen::state();
    fields.insert(comparatorState());
    for (const auto &array : {u"btOn"_s, u"btOff"_s, u"btPropriedades"_s})
        for (int index = 0; index < kRadios; ++index)
            fields[element(array, index)] = {.enabled = !isReading()};
    return fields;
}
