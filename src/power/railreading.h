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
};

/// A kind of rows that a screen can show, and the button that chooses it.
struct RailKind
{
    int kind;
    QStringView control; ///< empty: there is nothing to choose
    QStringView caption;
};

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
};

/// A reading of the rails: what the form paints, and the rows with their working columns for the store.
struct RailReading
{
    Panel panel;
    QList<RailRow> rows;
};

RailReading readRails(const RailScreenTraits &traits, const RailInput &input, const QList<RailRow> &rows);
