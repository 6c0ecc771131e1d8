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
    int outputs = 0;         ///< of this board that were read: rows of the table
    int changes = 0;         ///< references that this board would change: rows of the table
};

/// Holds a board against the rails whose references are not public: voltages without a reference, or with one that was
/// taken from boards before.
ReferenciasReading readReferencias(const ReferenciasInput &input);

/// What these boards change: the median of each rail is its reference, and their number and spread its source. A rail
/// whose boards lie further apart than a reference would tolerate has none.
QList<TakenReference> referencesFrom(const QList<RailRow> &rows, const QList<GoodReading> &readings, QDate date);
