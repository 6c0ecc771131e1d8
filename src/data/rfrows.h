#pragma once

#include "store.h"

#include <QList>
#include <QString>

/// A voltage to be measured around the radios of a model.
struct RfRow
{
    QString malha;
    QString componente;
    QString valor;
    QString source = {};     ///< where the value comes from
    QString confidence = {}; ///< in it: "high", "medium", "low", or empty when not known

    friend bool operator==(const RfRow &, const RfRow &) = default;
};

/// The rows of a model and variant: "T", "I" or "Q".
Result<QList<RfRow>> rfRows(const Store &store, const QString &model, const QString &tipo);
