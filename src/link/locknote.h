#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

/// A program that holds a port.
struct PortHolder
{
    qint64 pid = 0;
    QString program; ///< empty when it cannot be known

    friend bool operator==(const PortHolder &, const PortHolder &) = default;
};

/// What a lock file says of its owner: process number and program, a line each.
QByteArray lockNote(const PortHolder &holder);

/// The owner that a lock file names, ours or another program's: a process number, and the program behind it or on the
/// next line. Nothing when there is no such number.
std::optional<PortHolder> notedHolder(const QByteArray &note);
