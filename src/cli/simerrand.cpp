#include "simerrand.h"

#include "terminal.h"

using namespace Qt::StringLiterals;

SimErrand::SimErrand(PhoneProfile profile) : m_phone(std::move(profile)) {}

void SimErrand::start()
{
    if (m_phone.device().isEmpty()) {
        printError(oneLine({{u"SIM_UNAVAILABLE"_s}}, Language::English));
        emit finished(ExitCode::Link);
        return;
    }
    printOut(m_phone.device() + u'\n');
}
