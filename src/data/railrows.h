#pragma once

#include "store.h"

#include <QList>
#include <QString>

#include <array>

/// One power rail of one model: a row of `Master`, with what is known of its reference.
struct RailRow
{
    qint64 id = 0;
    QString modelo;
    int tipo = 0;             ///< kind: 0 core rails, 1 LDOs, 2 bucks
    QString orig;             ///< the output, "Buck3"; current rows carry "mA" in front
    QString malha;            ///< the net
    QString ci;               ///< the chip or block it feeds
    QString refT;             ///< reading index; empty: shown, never read
    QString refV;             ///< nominal in volts; empty: unknown, "0": nothing to judge
    QString ref;              ///< the reference as shown
    QString leitura;          ///< last reading as shown
    QString porc;             ///< its deviation as shown
    std::array<QString, 3> g; ///< the technician's recorded readings
    QString source;           ///< where the reference comes from
    QString confidence;       ///< "high", "medium", "low", or empty when not known
    bool isTaken = false;     ///< the reference was taken from the technician's own boards

    friend bool operator==(const RailRow &, const RailRow &) = default;
};

/// The orders in which rails are listed.
enum class RailOrder
{
    Orig,
    ModeloOrig,
    CiOrig,
    PorcDescending,
    Malha,
    ModeloMalha,
    CiMalha
};

struct RailFilter
{
    QString modelo;
    int tipo = 0;
    RailOrder order = RailOrder::Orig;
    bool onlyReadable = false; ///< only rows with a reading index
};

Result<QList<RailRow>> railRows(const Store &store, const RailFilter &filter);

/// The rails of every kind that feed a chip, by net, without what is known of their references.
Result<QList<RailRow>> chipRails(const Store &store, const QString &model, const QString &chip);

/// Empties the working columns `Leitura` and `PORC` of every row of every model and kind.
Result<Done> clearReadings(Store &store);

/// Clears every reading, then writes `Leitura` and `PORC` of these rows by id; all in one transaction.
Result<Done> writeReadings(Store &store, const QList<RailRow> &rows);

enum class Slot
{
    G1,
    G2,
    G3
};

/// A recorded text for one row.
struct SlotText
{
    qint64 id = 0;
    QString text;
};

/// Overwrites one recording column of these rows, all or none.
Result<Done> writeSlot(Store &store, Slot slot, const QList<SlotText> &texts);
