#pragma once

#include "language.h"
#include "panel.h"

#include <QString>

#include <span>

/// What a value of a chip is measured in.
enum class ChipUnit
{
    Volt,
    Milliampere,
    Celsius
};

/// Which fields of a row take the colour of what came of it.
enum class Tinted
{
    Nothing,
    Deviation,
    Value,
    Both
};

/// What stands in the place of a value that is not there.
enum class GapText
{
    NoReading, ///< "Sem Medição"
    Dash
};

/// Whether a row shows everything that is judged of it, or only speaks up at a fault.
enum class Speaks
{
    Always,
    AtFault
};

/// How a screen shows what came of a row.
struct ChipManner
{
    Tinted pass = Tinted::Nothing;
    Tinted fault = Tinted::Nothing;
    Tinted gap = Tinted::Nothing;
    GapText gapText = GapText::NoReading;
    Speaks speaks = Speaks::Always;
};

/// Which line of a report tells a row, and what it calls the nominal there; 0: none.
struct ReportPlace
{
    int row = 0;
    QLatin1StringView nominal = {};
    RowMark plain = RowMark::NotJudged; ///< of a row without a nominal
};

/// One value that the phone prints of a chip: where it is shown and what it is held against.
struct ChipRow
{
    QLatin1StringView label;   ///< in the reply
    QLatin1StringView control; ///< of the value
    QLatin1StringView what;    ///< the net or the pin, for findings and tables
    ChipUnit unit = ChipUnit::Volt;
    ChipManner manner = {};
    QLatin1StringView reference = {}; ///< with three decimals; empty: shown only
    Rule rule = {};
    QLatin1StringView deviation = {}; ///< the control of the deviation
    int mark = -1;                    ///< of the pair OK(n) and NO(n)
    QLatin1StringView warning = {};   ///< a control that shows beside a fault
    ReportPlace report = {};
};

/// The name that a model's board prints beside a chip.
struct Designator
{
    QLatin1StringView model;
    QLatin1StringView name;
};

/// A chip: its rows, and how many pairs of marks its screen has.
struct ChipTable
{
    QLatin1StringView screen; ///< the form's name
    QLatin1StringView chip;   ///< as it is called on boards
    std::span<const ChipRow> rows;
    int marks = 0;
    std::span<const Designator> designators = {};
    std::optional<ReportPage> page = {}; ///< of the report service, where it has one for the chip
};

/// The reply of a chip and what it is read with.
struct ChipInput
{
    QString reply; ///< empty: nothing was read yet
    bool cut = false;
    QString model;
    Language language = Language::Portuguese;
};

/// Reads every row of the table out of the reply and judges it. Marks and warnings of the last reading go, its colours
/// turn neutral; a model without a designator leaves `lbUC` as it is.
Panel readChip(const ChipTable &table, const ChipInput &input);

/// Shows one of the two pictures of a mark, with its word, and hides the other.
void setMark(Panel &panel, int mark, Verdict verdict, Language language);
bool isShown(const Panel &panel, const QString &control);
/// The name of an element of a control array.
QString element(QStringView array, int index);
