#include "railgridscreen.h"

using namespace Qt::StringLiterals;

QMap<QString, Field> RailGridScreen::state() const
{
    const RailOrder order = input().order;
    QMap<QString, Field> fields = RailScreen::state();
    fields[u"OpMalha"_s] = {.checked = order == traits().malhaOrder || order == traits().loadOrder};
    fields[u"OpIc"_s] = {.checked = order == traits().icOrder};
    fields[u"OpPorc"_s] = {.checked = order == RailOrder::PorcDescending};
    return fields;
}

void RailGridScreen::sortBy(RailOrder order)
{
    input().order = order;
    rebuild();
}

void RailGridScreen::DBGrid1_Click()
{
    if (!hasReading())
        session().boxes().message({{u"PRIMEIRO_LEITURA"_s}});
}

QList<SlotText> RailGridScreen::shownReadings() const
{
    QList<SlotText> texts;
    for (const RailRow &row : front().shown)
        texts.append({row.id, row.leitura});
    return texts;
}

bool RailGridScreen::mayRecord()
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

void RailGridScreen::btGravar_Click(int slot)
{
    if (mayRecord())
        writeSlotAfter(caption(u"Gravar"), caption(u"Deseja salvar?"), slot, shownReadings());
}

void RailGridScreen::btExcluir_Click(int slot)
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

void RailGridScreen::writeSlotAfter(const QString &title, const QString &question, int slot,
                                    const QList<SlotText> &texts)
{
    const QString rails = caption(kindCaption(traits(), kind()));
    const QString target = u"%1 %2 · %3 · %4"_s.arg(caption(u"Gravação")).arg(slot).arg(rails, session().model());
    session().boxes().ask({title, question + u'\n' + target}, [this, slot, texts](Answer answer) {
        if (answer != Answer::Yes)
            return;
        session().keep([slot, texts](Store &store) { return writeSlot(store, static_cast<Slot>(slot - 1), texts); },
                       [this](const Done &) { loadRows(); });
    });
}
