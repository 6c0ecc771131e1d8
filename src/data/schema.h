#pragma once

#include <QStringList>

/// The statements that make the tables of an empty store, in their order.
QStringList schemaStatements();
