#pragma once

#include <QCoreApplication>
#include <QString>

/// Who takes part, by command lines. In those with a port, "{device}" stands for the device to open.
struct Contest
{
    QString ours;
    QString oursOnPort;
    QString peer;
    QString peerOnPort;
    QString bare; ///< the least that a window with a store and a table costs
    int runs = 11;
};

/// Reads --ours, --ours-on-port, --peer, --peer-on-port, --bare and --runs.
Contest contestFor(const QCoreApplication &application);

/// Ends this program with a complaint: what could not be measured is not made up.
[[noreturn]] void giveUp(const QString &why);
