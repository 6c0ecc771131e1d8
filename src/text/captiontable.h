#pragma once

#include <QStringView>

#include <array>
#include <span>

/// A caption: its key and its text in each language.
struct CaptionRow
{
    QStringView key;
    QStringView portuguese;
    QStringView english;
    QStringView spanish;
};

using CaptionTable = std::span<const CaptionRow>;

/// Connection, models, languages, boxes that ask, updates.
CaptionTable windowCaptions();
/// What the reading and test screens show.
CaptionTable screenCaptions();
/// Console, comparator and command administration.
CaptionTable consoleCaptions();
/// Words of the workbench itself: rail, findings, empty states, verdicts, sources.
CaptionTable workbenchCaptions();
/// Reports and what they are asked for with.
CaptionTable reportCaptions();

/// All of them in the order in which they are searched: the first row of a key decides.
inline std::array<CaptionTable, 5> captionTables()
{
    return {windowCaptions(), screenCaptions(), consoleCaptions(), workbenchCaptions(), reportCaptions()};
}
