#pragma once

#include "labelledvalue.h"
#include "panel.h"
#include "railrows.h"

#include <QString>

#include <optional>
#include <span>

/// The label of a reading index in the phone's self-test reply ("43" gives "BIST ldo3:"); empty for an index that
/// has none. The index is compared as text: "05" is not "5".
QString BistLabel(const QString &index);

/// Which outputs a screen never measures, and how it words a time-out.
struct RailRules
{
    enum class Key
    {
        Orig,
        Malha
    };

    Key firstCoreKey = Key::Orig; ///< where the newest models' processor current is named
    QLatin1StringView firstCore;
    std::span<const QLatin1StringView> never; ///< outputs that no phone shows in diagnostics mode
    bool skipsCamera = true;
    QLatin1StringView timeoutText{}; ///< empty: as any reading that is missing
};

/// What a reply is held against, besides the rows.
struct RailContext
{
    LabelledReply reply;
    QString model;
    int voltDecimals = 3;
    int milliDecimals = 1;
    QString noReading; ///< "Sem Medição" in the user's language
    Rule rule = Rule::tenPercent();
};

/// A row of the reference table with what the reply gave for it.
struct EvaluatedRail
{
    RailRow row; ///< with `leitura` and `porc` filled in
    std::optional<double> deviation = {};
    std::optional<Rule> rule = {}; ///< what it is judged by, if it has a reference
    Verdict verdict = Verdict::None;
    QString line = {};
    QString output = {}; ///< its label in the reply
    bool indexUnknown = false;
};

/// Reads one row out of the reply, formats it and judges it against its reference. A row without a
/// reading index stays unread. A missing or timed-out line of a row with a reference is incomplete.
EvaluatedRail AvaliaLinhaPmu(const RailContext &context, const RailRow &row, const RailRules &rules);

/// A row has a reference when its nominal is known and is not "0".
bool hasReference(const RailRow &row);

/// The rails in an order, exactly as the store would list their rows.
QList<EvaluatedRail> sorted(QList<EvaluatedRail> rails, RailOrder order);

/// What a rail came to on a screen, held against something or not.
Judgement judgementOf(const EvaluatedRail &rail, const QString &screen);

/// The judgements of the rails that were held against something.
QList<Judgement> judgementsOf(const QList<EvaluatedRail> &rails, const QString &screen);

/// The rows, the judgements and the verdict of a grid of rails. A cut reply is never judged good.
void addRails(Panel &panel, const QList<EvaluatedRail> &rails, bool cut);
