#pragma once

#include "language.h"
#include "notice.h"

#include <optional>

/// The caption of a key in a language. Empty when the key is unknown or the language is none of the three, so that a
/// missing row is seen at once.
QString caption(QStringView key, Language language);

/// A caption that tells a number. A number with words of its own ("1 output") has a row of its own, its key ending in
/// the number ("%1 saídas: 1").
QString countCaption(QStringView key, qsizetype count, Language language);

enum class MessageIcon
{
    None,
    Information,
    Critical,
    Question
};

/// What a message box shows.
struct Message
{
    QString title;
    QStringList lines;
    MessageIcon icon = MessageIcon::Information;
};

/// The message of a notice with its gaps filled; nothing for an unknown key or language.
std::optional<Message> message(const Notice &notice, Language language);

/// Every key of the two tables, for the checks that hold them complete.
QStringList captionKeys();
QStringList messageKeys();
