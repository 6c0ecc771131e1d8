#include "models.h"

#include <algorithm>
#include <array>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

struct Numbers
{
    QLatin1StringView model;
    std::array<QLatin1StringView, 3> numbers;
};

constexpr Numbers kModels[] = {
    {"IP 6"_L1, {"A1549"_L1, "A1586"_L1, "A1589"_L1}},  {"IP 6 Plus"_L1, {"A1524"_L1, "A1593"_L1, "A1522"_L1}},
    {"IP 6s"_L1, {"A1700"_L1, "A1633"_L1, "A1688"_L1}}, {"IP 6s Plus"_L1, {"A1634"_L1, "A1687"_L1, "A1699"_L1}},
    {"IP 7"_L1, {"A1779"_L1, "A1660"_L1, "A1778"_L1}},  {"IP 7 Plus"_L1, {"A1784"_L1, "A1785"_L1, "A1661"_L1}},
    {"IP 8"_L1, {"A1906"_L1, "A1863"_L1, "A1905"_L1}},  {"IP 8 Plus"_L1, {"A1864"_L1, "A1897"_L1, "A1898"_L1}},
    {"IP X"_L1, {"A1865"_L1, "A1901"_L1, "A1902"_L1}},
};

QStringList namesInOrder()
{
    QStringList names;
    std::ranges::transform(kModels, std::back_inserter(names), [](const Numbers &row) { return QString(row.model); });
    return names;
}

} // namespace

const QStringList &modelNames()
{
    static const QStringList names = namesInOrder();
    return names;
}

QString modelForNumber(const QString &number)
{
    for (const Numbers &row : kModels)
        if (std::ranges::find(row.numbers, number) != row.numbers.end())
            return row.model;
    return {};
}

bool isNewestGeneration(const QString &model)
{
    return model.startsWith("IP 8"_L1) || model.startsWith("IP X"_L1);
}

bool hasOledPanel(const QString &model)
{
    return model == "IP X"_L1;
}
