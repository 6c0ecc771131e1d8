#pragma once

#include "replyline.h"
#include "verdict.h"

#include <optional>

/// A live line beside the recorded one.
struct DifferenceRow
{
    enum class Kind
    {
        Same,
        Masked, ///< alike but for what differs from phone to phone
        Close,  ///< numbers apart by no more than the tolerance
        Changed,
        OnlyLive,
        OnlyRecorded
    };

    Kind kind = Kind::Same;
    int liveNumber = 0; ///< 0: there is no such line
    int recordedNumber = 0;
    QString live = {};
    QString recorded = {};
    QString change = {}; ///< by how much the numbers differ

    bool differs() const { return kind >= Kind::Changed; }
    /// What names the row in a summary.
    QString what() const;

    friend bool operator==(const DifferenceRow &, const DifferenceRow &) = default;
};

/// What is compared, and how strictly.
struct DifferenceInput
{
    QString live;
    QString recorded;
    QStringList masks = {};
    double tolerance = 0; ///< numbers apart by so many per cent count as alike
    bool cut = false;     ///< the live reply is not whole
};

/// Two replies line by line: text where it stands, "LABEL VALUE UNIT" by label wherever it stands.
struct ReplyDifference
{
    QList<DifferenceRow> rows;
    int differing = 0;
    int close = 0; ///< rows that differ within the tolerance
    Verdict verdict = Verdict::None;

    /// The first row that differs.
    std::optional<qsizetype> first() const;
    /// The next row that differs after or before a row.
    std::optional<qsizetype> next(qsizetype row) const;
    std::optional<qsizetype> previous(qsizetype row) const;
};

/// A pure function over values: it may run beside the window. Without a live or a recorded text there is nothing to
/// compare. A cut reply is never alike.
ReplyDifference difference(const DifferenceInput &input);
