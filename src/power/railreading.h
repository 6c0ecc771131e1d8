#pragma once

#include "language.h"
#include "panel.h"
#include "railevaluation.h"
#include "railorder.h"
#include "settings.h"

/// The self-test reply and what it is read with.
struct RailInput
{
    QString reply; ///< empty: nothing was read yet, the rows are only listed
    bool cut = false;
    QString model;
    Language language = Language::Portuguese;
    int voltDecimals = 3;
    int milliDecimals = 1;
    RailOrder order = RailOrder::ModeloOrig;
    QString chip = {}; ///< only rails whose chip's name contains this are shown; empty: all
    Rule rule = Rule::tenPercent();
};

/// A kind of rows that a screen can show, and the button that chooses it.
struct RailKind
{
    int kind;
    QStringView control; ///< empty: there is nothing to choose
    QStringView caption;
};

/// A reading of the rails: what the form paints, and the rows with their working columns for the store.
struct RailReading
{
    Panel panel;
    QList<RailRow> rows;         ///< all, also those that are not shown
    QList<RailRow> shown;        ///< those of the panel, in its order
    QList<Judgement> judgements; ///< of all rows
};

struct RailScreenTraits;

/// Lists the rails as a grid.
RailReading readRails(const RailScreenTraits &traits, const RailInput &input, const QList<RailRow> &rows);

/// A screen that shows rails of the reference table: its words, its rules, its settings.
struct RailScreenTraits
{
    QLatin1StringView name;
    QLatin1StringView code;
    QLatin1StringView title;
    RailRules rules;
    RailOrder loadOrder;
    RailOrder malhaOrder; ///< `OpMalha`
    RailOrder icOrder;    ///< `OpIc`
    Combo voltDecimals;
    Combo milliDecimals;
    std::span<const RailKind> kinds; ///< the first is shown first
    QLatin1StringView readButton;
    std::span<const QLatin1StringView> restingControls; ///< what is disabled while a reading runs, besides the decimals
    decltype(&readRails) read = readRails;
    QLatin1StringView report = {}; ///< the type under which the report service knows the screen; empty: it does not
};

/// The note on outputs that show no value in diagnostics mode; which ones depends on the generation.
QString generationNote(const QString &model, Language language);

/// The rows in the order of the input, each held against the reply, if there is one.
QList<EvaluatedRail> evaluatedRails(const RailScreenTraits &traits, const RailInput &input, const QList<RailRow> &rows);

/// A reading with what every screen over rails has: title, note and messages.
RailReading railReading(const RailScreenTraits &traits, const RailInput &input, const QList<EvaluatedRail> &rails);

/// The rows that were evaluated.
QList<RailRow> rowsOf(const QList<EvaluatedRail> &rails);
