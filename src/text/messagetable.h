#pragma once

#include "catalogue.h"

#include <array>
#include <span>

/// What a message says in one language. The lines are joined by line feeds.
struct MessageText
{
    QStringView title;
    QStringView lines;
    MessageIcon icon = MessageIcon::Information;
};

struct MessageRow
{
    QStringView key;
    std::array<MessageText, 3> texts;
};

/// The messages that the screens show.
std::span<const MessageRow> messageTable();
