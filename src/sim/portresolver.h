#pragma once

#include "portaddress.h"
#include "result.h"
#include "simulatedphone.h"

#include <QString>

#include <memory>

/// Finds the device behind a port: a number of this machine's list, a path, or a simulated phone that it starts and
/// keeps running until the next one is asked for.
class PortResolver
{
public:
    /// Bytes per second of a simulated phone.
    explicit PortResolver(int bytesPerSecond = SimulatedPhone::kPace) : m_bytesPerSecond(bytesPerSecond) {}

    Result<QString> deviceFor(const PortAddress &address);

private:
    Result<QString> startPhone(const QString &description);

    int m_bytesPerSecond;
    std::unique_ptr<SimulatedPhone> m_phone;
};
