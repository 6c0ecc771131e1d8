#pragma once

#include <QStringView>

/// A number from -1 to 1 that looks like chance and is the same at every start, for a model and something measured.
double scatter(QStringView model, QStringView what);

/// Eight hexadecimal digits of the same kind.
QString scatteredDigits(QStringView model, QStringView what);
