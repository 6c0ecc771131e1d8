#pragma once

#include "railscreen.h"

/// A screen that shows its rails as a grid: orders, and three recorded readings beside the live one.
class RailGridScreen : public RailScreen
{
    Q_OBJECT

public:
    using RailScreen::RailScreen;

    void OpMalha_Click() { sortBy(traits().malhaOrder); }
    void OpIc_Click() { sortBy(traits().icOrder); }
    void OpPorc_Click() { sortBy(RailOrder::PorcDescending); }
    /// Records the shown reading into, or empties, slot 1, 2 or 3, after a question.
    void btGravar_Click(int slot);
    void btExcluir_Click(int slot);
    /// The grid was activated: before any reading there is nothing to look at.
    void DBGrid1_Click();

protected:
    QMap<QString, Field> state() const override;

private:
    void sortBy(RailOrder order);
    bool mayRecord();
    void writeSlotAfter(const QString &title, const QString &question, int slot, const QList<SlotText> &texts);
    QList<SlotText> shownReadings() const;
};
