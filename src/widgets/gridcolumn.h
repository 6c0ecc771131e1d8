#pragma once

#include <QStringView>
#include <Qt>

/// What a column of a grid holds, which decides how it is aligned and drawn.
enum class ColumnKind
{
    Name, ///< tells the row apart from the others
    Text,
    Number,
    Deviation, ///< the text with a bar around zero
    Drift,     ///< not a cell of the row: how far it is from what was recorded, with a drawing
    Verdict    ///< not a cell of the row: its verdict by shape and word
};

/// A column of a grid: the cell it shows and the caption over it. Both are literals.
struct GridColumn
{
    QStringView key;
    QStringView caption;
    ColumnKind kind = ColumnKind::Text;

    constexpr Qt::Alignment alignment() const
    {
        const bool left = kind == ColumnKind::Name || kind == ColumnKind::Text || kind == ColumnKind::Verdict;
        return (left ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter;
    }
};
