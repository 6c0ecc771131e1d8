#include "buckanswer.h"

#include "healthyrails.h"
#include "pmuoutputs.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kCommand = "buckcheck "_L1;
constexpr double kLargestShare = 0.1;

/// The graphics supply of the oldest phones sleeps in diagnostics mode, and their check does not know it.
double targetOf(const QString &model, const QString &output)
{
    const double healthy = typicalMillivolts(model, output);
    const bool isOldGraphics = model.startsWith("IP 6"_L1) && !model.startsWith("IP 6s"_L1) && output == "buck1"_L1;
    return isOldGraphics ? typicalMillivolts(model, u"buck0"_s) : healthy;
}

QString checkLine(const QString &output, double target, const QString &measured)
{
    const bool passed = std::abs(measured.toDouble() - target) <= kLargestShare * target;
    const QString verdict = passed ? u"PASS"_s : u"FAIL"_s;
    return u"%1: target %2 mV, measured %3 mV, %4"_s.arg(output).arg(target, 0, 'f', 0).arg(measured, verdict);
}

} // namespace

std::optional<QStringList> buckAnswer(const PhoneProfile &profile, const QString &line)
{
    if (!line.startsWith(kCommand))
        return {};
    const QString output = "buck"_L1 + line.sliced(kCommand.size());
    const auto token = profile.rails.constFind(pmuLabel(output));
    if (token == profile.rails.constEnd())
        return QStringList{output + ": not found"_L1};
    if (*token == "timeout"_L1)
        return QStringList{output + ": timeout"_L1};
    if (output == "buck0"_L1) // the processor runs on it: it is only read
        return QStringList{u"buck0 voltage: %1 mV"_s.arg(*token)};
    return QStringList{checkLine(output, targetOf(profile.model, output), *token)};
}
