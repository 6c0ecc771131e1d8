#pragma once

#include <QStringList>

#include <span>

/// A table of a store, with the names of its columns between blanks.
struct SchemaTable
{
    enum class Origin
    {
        Given, ///< every store has it
        Added  ///< made where it is missing, when a store is opened for writing
    };

    QLatin1StringView name;
    QLatin1StringView columns;
    QLatin1StringView key = {};
    Origin origin = Origin::Given;
};

/// What the head of a store's file says it is: "PMX1". A file without a mark is taken too.
inline constexpr int kApplicationId = 0x504d5831;
/// The newest layout that this program knows.
inline constexpr int kSchemaVersion = 1;

/// Every table, in the order in which they are made.
std::span<const SchemaTable> schemaTables();

QStringList columnsOf(const SchemaTable &table);

/// Whether a column holds a number; all others hold text.
bool isNumberColumn(QStringView column);

/// The statement that makes a table where it is missing.
QString tableStatement(const SchemaTable &table);

/// The statements that make an empty file a store, in their order.
QStringList schemaStatements();
