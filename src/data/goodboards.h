#pragma once

#include "store.h"

#include <QList>
#include <QString>

/// What one rail measured on one board that is known to be good.
struct GoodReading
{
    int tipo = 0;
    QString orig;
    /// When it was taken, then its serial number where the phone told one: "2026-11-21 15:20:11.042 C39XK1ABCDEF".
    QString board;
    double volts = 0;

    friend bool operator==(const GoodReading &, const GoodReading &) = default;
};

/// A reference that the technician's boards gave to a rail that had none.
struct TakenReference
{
    qint64 id = 0; ///< of the rail's row
    int tipo = 0;
    QString orig;
    QString refV; ///< nominal in volts; empty: the boards give none
    QString source = {};

    friend bool operator==(const TakenReference &, const TakenReference &) = default;
};

/// The readings of every good board of a model, in the order in which they were taken.
Result<QList<GoodReading>> goodReadings(const Store &store, const QString &model);

/// What becomes of the boards of a model.
struct BoardChange
{
    QStringList dropped = {};
    QList<GoodReading> added = {};
    QList<TakenReference> references = {}; ///< that the boards give afterwards
};

/// Keeps and forgets boards, and writes the references that they give then; all or nothing. A reference that was not
/// taken from boards is never touched.
Result<Done> changeGoodBoards(Store &store, const QString &model, const BoardChange &change);
