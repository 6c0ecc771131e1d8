#pragma once

#include <QObject>

/// Hears the system ask the program to end (a closed terminal, Ctrl+C, a shutdown) and says so from the event loop,
/// where what is under way can be brought to an end. While none lives, and where the system has no such signals, the
/// program just ends. One at a time.
class StopSignals : public QObject
{
    Q_OBJECT

public:
    explicit StopSignals(QObject *parent = nullptr);
    ~StopSignals() override;

signals:
    void asked();
};
