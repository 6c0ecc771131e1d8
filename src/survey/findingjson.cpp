#include "findingjson.h"

using namespace Qt::StringLiterals;

QJsonObject jsonOf(const Finding &finding)
{
    return {{u"what"_s, finding.what},
            {u"screens"_s, QJsonArray::fromStringList(finding.screens)},
            {u"reading"_s, finding.reading},
            {u"reference"_s, finding.reference},
            {u"source"_s, finding.source},
            {u"deviation"_s, finding.deviation ? QJsonValue(*finding.deviation) : QJsonValue()},
            {u"verdict"_s, word(finding.verdict)},
            {u"line"_s, finding.line}};
}

QJsonArray jsonOf(const QList<Finding> &findings)
{
    QJsonArray array;
    for (const Finding &finding : findings)
        array.append(jsonOf(finding));
    return array;
}
