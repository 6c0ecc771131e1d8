#pragma once

#include "result.h"

#include <QList>
#include <QString>

/// A row of a seed table by column name is a list of cells; the header gives the names.
struct SeedTable
{
    QStringList columns;
    QList<QStringList> rows;

    /// The cell of a row, empty when the column is not there.
    QString cell(const QStringList &row, QStringView column) const;
};

/// One of the tables that ship with the program: "master", "i2c", "rf", "commands".
SeedTable seedTable(const QString &name);

/// Makes a store from the seed tables. Refuses with STORE_EXISTS to touch a file that is there; a store that could
/// not be made whole leaves no file behind.
Result<Done> createStore(const QString &path);
