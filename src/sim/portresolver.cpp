#include "portresolver.h"

#include "openerror.h"
#include "portlist.h"

#include <algorithm>

using namespace Qt::StringLiterals;

static Result<QString> deviceOfNumber(int number)
{
    const QList<PortEntry> ports = portsOfThisMachine();
    const auto found = std::ranges::find(ports, number, &PortEntry::number);
    if (found != ports.end())
        return found->device;
    return noSuchPort(QString::number(number));
}

Result<QString> PortResolver::deviceFor(const PortAddress &address)
{
    if (address.kind == PortAddress::Kind::Simulated)
        return startPhone(address.text);
    m_phone.reset();
    return address.kind == PortAddress::Kind::Number ? deviceOfNumber(address.number) : Result<QString>(address.text);
}

Result<QString> PortResolver::startPhone(const QString &description)
{
    const Result<PhoneProfile> profile = profileFor(description);
    if (!profile)
        return profile.trouble();
    m_phone = std::make_unique<SimulatedPhone>(*profile, m_bytesPerSecond);
    if (m_phone->device().isEmpty())
        return Trouble{{u"SIM_UNAVAILABLE"_s}};
    return m_phone->device();
}
