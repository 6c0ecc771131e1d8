#pragma once

#include <QStringView>

#include <span>

/// A caption: its key and its text in each language.
struct CaptionRow
{
    QStringView key;
    QStringView portuguese;
    QStringView english;
    QStringView spanish;
};

/// The captions in the order in which they are searched: the first row of a key decides.
std::span<const CaptionRow> captionTable();
