#include "json.h"

#include "visibletext.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;

static QJsonObject fieldObject(const Field &field)
{
    QJsonObject object;
    if (field.text)
        object[u"text"_s] = *field.text;
    if (field.back)
        object[u"back"_s] = literal(*field.back);
    if (field.fore)
        object[u"fore"_s] = literal(*field.fore);
    if (field.items)
        object[u"items"_s] = QJsonArray::fromStringList(*field.items);
    if (field.visible)
        object[u"visible"_s] = *field.visible;
    if (field.enabled)
        object[u"enabled"_s] = *field.enabled;
    return object;
}

static QJsonObject fieldsObject(const QMap<QString, Field> &fields)
{
    QJsonObject object;
    for (const auto &[name, field] : fields.asKeyValueRange())
        object[name] = fieldObject(field);
    return object;
}

static QJsonArray rowsArray(const QList<Row> &rows)
{
    QJsonArray array;
    for (const Row &row : rows) {
        QJsonObject object;
        for (const auto &[column, text] : row.cells)
            object[column] = text;
        array.append(object);
    }
    return array;
}

QJsonArray messagesArray(const QList<Notice> &messages)
{
    QJsonArray array;
    for (const Notice &notice : messages) {
        if (!notice.key.isEmpty())
            array.append(notice.key);
        else
            array.append(QJsonObject{{u"title"_s, notice.arguments.value(0)}, {u"text"_s, notice.arguments.value(1)}});
    }
    return array;
}

static QJsonArray findingsArray(const QList<Judgement> &judgements)
{
    QJsonArray array;
    for (const Judgement &judgement : judgements) {
        if (judgement.verdict != Verdict::Fail && judgement.verdict != Verdict::Incomplete)
            continue;
        array.append(
            QJsonObject{{u"what"_s, judgement.what},
                        {u"reading"_s, judgement.reading},
                        {u"reference"_s, judgement.reference},
                        {u"source"_s, judgement.source},
                        {u"deviation"_s, judgement.deviation ? QJsonValue(*judgement.deviation) : QJsonValue()},
                        {u"verdict"_s, word(judgement.verdict)},
                        {u"line"_s, judgement.line}});
    }
    return array;
}

QJsonObject toJson(const Panel &panel, const ReadingContext &context)
{
    return {{u"screen"_s, panel.screen},
            {u"model"_s, context.model},
            {u"language"_s, static_cast<int>(context.language)},
            {u"command"_s, context.command},
            {u"verdict"_s, word(panel.verdict)},
            {u"fields"_s, fieldsObject(panel.fields)},
            {u"rows"_s, rowsArray(panel.rows)},
            {u"lines"_s, QJsonArray::fromStringList(panel.lines)},
            {u"messages"_s, messagesArray(context.messages)},
            {u"findings"_s, findingsArray(panel.judgements)}};
}

QString document(const QJsonObject &object)
{
    return visibleJson(QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact))) + u'\n';
}
