#pragma once

#include "goodboards.h"
#include "language.h"
#include "panel.h"
#include "railrows.h"

#include <QDate>

/// A self-test reply of a board that is known to be good, with what is known of its model.
struct ReferenciasInput
{
    QString reply; ///< empty: nothing was read yet
    QString model;
    Language language = Language::Portuguese;
    QList<RailRow> rows; ///< of every kind
    QList<GoodReading> earlier;
};

/// What the boards would give, and what this one read.
struct ReferenciasReading
{
    Panel panel;
    QList<GoodReading> here; ///< the board has no name yet
    int faults = 0;          ///< outputs of this board that fail a reference which was not taken from boards
};

/// Holds a board against the rails whose references are not public: voltages without a reference, or with one that was
/// taken from boards before.
ReferenciasReading readReferencias(const ReferenciasInput &input);

/// The references that these boards give: the median of each rail. A rail whose boards lie further apart than a
/// reference would tolerate has none.
QList<TakenReference> referencesFrom(const QList<RailRow> &rows, const QList<GoodReading> &readings, QDate date);
