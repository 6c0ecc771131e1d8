#pragma once

#include <QStringList>

#include <span>

/// A table of a store, with the names of its columns between blanks.
struct SchemaTable
{
    enum class Origin
    {
        Given, ///< every store has it
        Added  ///< completed where it or one of its columns is missing
    };

    QLatin1StringView name;
    QLatin1StringView columns;
    QLatin1StringView key = {};
    Origin origin = Origin::Given;
};

/// What the head of a store's file says it is: "PMX1". A file without a mark is taken too.
inline constexpr int kApplicationId = 0x504d5831;
/// The newest layout that this program knows.
inline constexpr int kSchemaVersion = 3;

/// Every table, in the order in which they are made.
std::span<const SchemaTable> schemaTables();

QStringList columnsOf(const SchemaTable &table);

/// Whether a column holds a number; all others hold text.
bool isNumberColumn(QStringView column);

/// A column as a table is told of it: its name, its type and what it holds at first.
QString columnStatement(const QString &name);

/// The statement that makes a table in this part of a connection: "main" is the file, "temp" is gone with it.
QString tableStatement(const SchemaTable &table, QLatin1StringView part = QLatin1StringView("main"));

/// The statements that make an empty file a store, in their order.
QStringList schemaStatements();
