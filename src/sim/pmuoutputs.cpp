#include "pmuoutputs.h"

using namespace Qt::StringLiterals;

namespace {

struct Group
{
    QLatin1StringView name;
    int first;
    int count;
};

constexpr Group kGroups[] = {
    {"ibuck"_L1, 0, 12},   {"buck"_L1, 0, 12}, {"buck3_sw"_L1, 1, 3},
    {"buck4_sw"_L1, 1, 2}, {"ldo"_L1, 0, 20},  {"ildo"_L1, 0, 20},
};
constexpr QLatin1StringView kSingles[] = {"ibuf_1v2"_L1, "vbuf_1v2"_L1, "vrtc"_L1};

} // namespace

QStringList pmuOutputs()
{
    QStringList outputs;
    for (const Group &group : kGroups) {
        for (int i = group.first; i < group.first + group.count; ++i)
            outputs.append(group.name + QString::number(i));
    }
    for (const QLatin1StringView single : kSingles)
        outputs.append(single);
    return outputs;
}

QString pmuLabel(const QString &output)
{
    const QLatin1StringView prefix = output.startsWith("ibuck"_L1) ? ""_L1 : "BIST "_L1;
    return prefix + output + u':';
}

QString outputOfRow(const QString &orig)
{
    const QString name = orig.simplified().remove(u' ').toLower();
    if (!name.startsWith("ma"_L1))
        return name;
    const QString output = name.sliced(2);
    return isCurrent(output) ? output : u'i' + output;
}

bool isCurrent(const QString &output)
{
    return output.startsWith(u'i');
}
