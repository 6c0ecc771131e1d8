#pragma once

#include <QByteArray>

#include <optional>

/// A chunk of bytes as it passed between us and the phone.
struct Exchange
{
    enum class Direction : char
    {
        FromPhone = '<',
        ToPhone = '>'
    };

    qint64 milliseconds = 0; ///< since 1970, UTC
    Direction direction = Direction::FromPhone;
    QByteArray bytes = {};

    friend bool operator==(const Exchange &, const Exchange &) = default;
};

/// A chunk as one line of the log file, ended by a line feed:
///
///     2026-03-01T14:05:09.250Z < pmuadc --read all\r\n
///
/// that is the time (UTC), a blank, "<" from or ">" to the phone, a blank, and the bytes: visible ASCII and blanks as
/// they are, "\\", "\r", "\n", "\t", and every other byte, also a blank at the very end, as "\x" with two digits. So
/// each byte can be told again, whatever it was.
QByteArray exchangeLine(const Exchange &exchange);

/// The chunk of such a line, with or without its line feed; nothing for comments ("# …") and damaged lines.
std::optional<Exchange> exchangeOf(const QByteArray &line);
