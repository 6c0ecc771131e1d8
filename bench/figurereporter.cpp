#include "figurereporter.h"

#include "figure.h"

#include <QLatin1StringView>

using namespace Qt::StringLiterals;

struct Limit
{
    QLatin1StringView name;
    double milliseconds;
};

static constexpr Limit kLimits[] = {
    {"judge a 6 kB reply against 120 rows"_L1, 0.5},       {"judge 4 MiB of empty lines, buses and rails"_L1, 1000},
    {"prompt seen to grid painted, 120 rows"_L1, 10},      {"difference of two replies of 100,000 lines"_L1, 1000},
    {"20 MB into the open console, longest block"_L1, 50},
};

static std::optional<double> limitOf(const QString &name)
{
    for (const Limit &limit : kLimits)
        if (name == limit.name)
            return limit.milliseconds;
    return std::nullopt;
}

void FigureReporter::ReportRuns(const std::vector<Run> &runs)
{
    for (const Run &run : runs) {
        const QString name = QString::fromStdString(run.run_name.function_name);
        if (run.aggregate_name == "median")
            print({.what = name, .unit = u"ms"_s, .ours = run.GetAdjustedRealTime(), .most = limitOf(name)});
    }
}
