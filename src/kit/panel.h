#pragma once

#include "notice.h"
#include "reportsheet.h"
#include "verdict.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>
#include <utility>

/// The colours that a reading may give a field, by what they mean.
enum class Colour
{
    Neutral,
    Fault,
    Pass,
    OutOfTolerance,
    InTolerance,
    Status,
    Text,
    Face,
    Answered,
    Silent
};

/// The literal of a colour as scripts know it: "&H00BBGGRR".
QString literal(Colour colour);

/// What a reading wants one control to show; only what is set is changed.
struct Field
{
    std::optional<QString> text = {};
    std::optional<Colour> back = {};
    std::optional<Colour> fore = {};
    std::optional<bool> visible = {};
    std::optional<bool> enabled = {};
    std::optional<bool> checked = {};
    std::optional<int> value = {}; ///< of a progress bar or a slider
    std::optional<QStringList> items = {};
    std::optional<QString> tip = {};

    friend bool operator==(const Field &, const Field &) = default;
};

/// One thing that was held against a reference.
struct Judgement
{
    QString what;
    QString reading;
    QString reference = {};
    QString source = {};                  ///< where the reference comes from
    std::optional<double> deviation = {}; ///< per cent of the reference; nothing when there is no reading
    std::optional<Rule> rule = {};
    Verdict verdict = Verdict::None;
    QString screen = {};
    QString line = {};   ///< the line of the reply that was judged
    QString output = {}; ///< its label in the reply, where several screens may judge the same one

    friend bool operator==(const Judgement &, const Judgement &) = default;
};

/// One row of a grid: its cells by column name, and how the grid draws it.
struct Row
{
    QList<std::pair<QString, QString>> cells;
    std::optional<double> deviation = {};
    std::optional<Rule> rule = {};
    Verdict verdict = Verdict::None;
    QString source = {};
    QString confidence = {}; ///< in the source: "high", "medium", "low", or empty when not known
    std::array<std::optional<double>, 3> drift = {}; ///< per cent from each recorded reading, where there is one

    /// The drift that is farthest from none.
    std::optional<double> largestDrift() const;
    QString cell(QStringView column) const;

    friend bool operator==(const Row &, const Row &) = default;
};

/// Everything a reading has to say: the one value that the form paints, the terminal prints and the tests compare.
struct Panel
{
    QString screen; ///< the form's name
    QString title;
    QMap<QString, Field> fields; ///< by control name; element n of a control array is "Name(n)"
    QList<Row> rows;
    QList<Row> facts; ///< the named fields as a table, for where there are no controls to stand in, with their lines
    QStringList lines;
    QList<Notice> messages; ///< what the reading wants to tell; without a key: title and text of a box of its own
    QList<Judgement> judgements;
    Verdict verdict = Verdict::None;
    QString focus;                          ///< the control that gets the focus
    std::optional<ReportSheet> report = {}; ///< nothing while there is nothing to report

    friend bool operator==(const Panel &, const Panel &) = default;
};

/// A reply that was cut before its end is never judged good.
void neverGoodWhenCut(Panel &panel, bool cut);
