#pragma once

#include "exitcode.h"
#include "simulatedphone.h"

/// Runs a simulated phone until it is stopped and prints the device on which it listens.
class SimErrand : public QObject
{
    Q_OBJECT

public:
    explicit SimErrand(PhoneProfile profile);
    void start();
    /// To be stopped is its proper end.
    void cancel() { emit finished(ExitCode::Good); }

signals:
    void finished(ExitCode code);

private:
    SimulatedPhone m_phone;
};
