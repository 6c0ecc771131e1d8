#include "figure.h"

#include <QStringList>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

static QString shown(std::optional<double> value)
{
    if (!value)
        return u"-"_s;
    const double size = std::abs(*value);
    return QString::number(*value, 'f', size >= 100 ? 0 : size >= 1 ? 2 : 4);
}

static std::optional<double> ratio(const Figure &figure)
{
    if (!figure.ours || !figure.others || *figure.others <= 0)
        return std::nullopt;
    return *figure.ours / *figure.others;
}

static QString limit(const Figure &figure)
{
    if (figure.most)
        return u"<= "_s + shown(figure.most);
    if (figure.mostTimes)
        return u"<= %1 x %2"_s.arg(*figure.mostTimes, 0, 'f', 1).arg(figure.othersName);
    return u"-"_s;
}

std::optional<bool> isMet(const Figure &figure)
{
    if (figure.most && figure.ours)
        return *figure.ours <= *figure.most;
    if (figure.mostTimes && figure.ours && figure.others)
        return *figure.ours <= *figure.mostTimes * *figure.others;
    return std::nullopt;
}

static QString verdict(const Figure &figure)
{
    if (!figure.most && !figure.mostTimes)
        return u"-"_s;
    const std::optional<bool> met = isMet(figure);
    return !met ? u"not measured"_s : *met ? u"met"_s : u"MISSED"_s;
}

void print(const Figure &figure)
{
    const QStringList cells{figure.what,          figure.unit,   shown(figure.ours), shown(figure.others),
                            shown(ratio(figure)), limit(figure), verdict(figure)};
    std::puts(qPrintable(cells.join(u'\t')));
    std::fflush(stdout);
}

double median(QList<double> values)
{
    Q_ASSERT(!values.isEmpty());
    std::ranges::sort(values);
    const qsizetype middle = values.size() / 2;
    return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}
