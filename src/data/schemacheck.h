#pragma once

#include "result.h"

#include <QList>
#include <QString>

#include <span>

class Store;

/// Something in a store that should not be so.
struct StoreFinding
{
    enum class Kind
    {
        Foreign, ///< not made by this program, or made to deceive it
        Newer,   ///< made by a later version
        Damaged, ///< no longer what was written
        Untidy,  ///< usable, but not as it should be
        Odd      ///< a row that means nothing and can be removed
    };

    Kind kind = Kind::Untidy;
    QString where;
    QString what;
};

/// A name from a file, fit to be shown: short, and without characters that act.
QString plainName(const QString &name);

/// What the marks in the head and the kinds of things in the file say against it. Cheap: asked at each opening.
Result<QList<StoreFinding>> strangeParts(const Store &store);

/// Whether a file is a store, as a trouble: STORE_FOREIGN, STORE_DAMAGED where it lacks the rails, or STORE_NEWER for
/// one that is sound but for its age.
Result<Done> isOneOfOurs(const Store &store);

/// The same, but a newer one will do: what it has besides does not keep it from being read.
Result<Done> isReadable(const Store &store);

/// The columns of these given tables, and of the added ones that are there, that are missing or hold something else
/// than they should. What a store can be completed with is not missing.
Result<QList<StoreFinding>> strangeColumns(const Store &store, std::span<const QLatin1StringView> given);

/// Whether a store can be completed, as a trouble: STORE_FOREIGN.
Result<Done> addedTablesAreOurs(const Store &store);

/// The trouble that a finding comes to, told of this file.
Trouble troubleOf(const StoreFinding &finding, const QString &path);
