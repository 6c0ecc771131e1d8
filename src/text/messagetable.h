#pragma once

#include "catalogue.h"

#include <array>
#include <span>

/// What a message says in one language. Its lines are joined by line feeds; "%1" … are gaps.
struct MessageText
{
    QStringView title;
    QStringView lines;
    MessageIcon icon = MessageIcon::Information;
};

struct MessageRow
{
    QStringView key;
    std::array<MessageText, 3> texts; ///< Portuguese, English, Spanish
};

/// A message under the product's name.
struct NoticeRow
{
    QStringView key;
    MessageIcon icon = MessageIcon::Information;
    std::array<QStringView, 3> lines; ///< Portuguese, English, Spanish
};

/// A question made of captions: its key is the caption of its first line.
struct QuestionRow
{
    QStringView key;
    QStringView titleKey;
    QStringView secondLineKey = {};
    QStringView tail = {}; ///< follows the first line as it is, gaps and all
};

inline constexpr QStringView kProductName = u"Tavimo Prelt";

/// The messages of the bench.
std::span<const MessageRow> benchMessages();
/// The questions that the screens ask.
std::span<const QuestionRow> questions();
/// Troubles with their remedies, and the lines that say what was refused or ignored.
std::span<const NoticeRow> workbenchMessages();
