// The part of the rail screens that records readings and empties recordings.

#include "railscreen.h"

using namespace Qt::StringLiterals;

QList<SlotText> RailScreen::shownReadings() const
{
    QList<SlotText> texts;
    for (const RailRow &row : m_readings.value(m_kind).rows)
        texts.append({row.id, row.leitura});
    return texts;
}

bool RailScreen::mayRecord()
{
    const auto refused = [this](const QString &why) {
        session().refuse({why});
        return false;
    };
    if (!session().isConnected())
        return refused(u"REFUSED_NOT_CONNECTED"_s);
    if (!session().isReady())
        return refused(u"REFUSED_BUSY"_s);
    if (!session().isModelKnown())
        return refused(u"REFUSED_NO_MODEL"_s);
    if (isCut()) // what was not read would overwrite what was
        return refused(u"REPLY_CUT"_s);
    DBGrid1_Click();
    return hasReading();
}

void RailScreen::btGravar_Click(int slot)
{
    if (mayRecord())
        writeSlotAfter(caption(u"Gravar"), caption(u"Deseja salvar?"), slot, shownReadings());
}

void RailScreen::btExcluir_Click(int slot)
{
    QList<SlotText> texts = shownReadings();
    for (SlotText &text : texts)
        text.text.clear();
    writeSlotAfter(caption(u"Excluir"), caption(u"Deseja excluir os dados gravados?"), slot, texts);
}

static QString kindCaption(const RailScreenTraits &traits, int kind)
{
    for (const RailKind &row : traits.kinds)
        if (row.kind == kind)
            return row.caption.toString();
    return {};
}

void RailScreen::writeSlotAfter(const QString &title, const QString &question, int slot, const QList<SlotText> &texts)
{
    const QString kind = caption(kindCaption(m_traits, m_kind));
    const QString target = u"%1 %2 · %3 · %4"_s.arg(caption(u"Gravação")).arg(slot).arg(kind, session().model());
    session().boxes().ask({title, question + u'\n' + target}, [this, slot, texts](Answer answer) {
        if (answer != Answer::Yes)
            return;
        session().keep([slot, texts](Store &store) { return writeSlot(store, static_cast<Slot>(slot - 1), texts); },
                       [this](const Done &) { loadRows(); });
    });
}
