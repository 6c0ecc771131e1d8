#include "guidetext.h"

#include "seeds.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

/// A language's place in the command table, and the heads of its columns.
struct TableWords
{
    QLatin1StringView mark;
    QStringView column;
    QStringView command;
    QStringView description;
};

constexpr TableWords kTables[] = {
    {"{{commands pt}}"_L1, u"Info", u"Comando", u"Descrição"},
    {"{{commands en}}"_L1, u"Info2", u"Command", u"Description"},
    {"{{commands es}}"_L1, u"Info3", u"Comando", u"Descripción"},
};

QString cell(QString text)
{
    return text.replace(u'|', "\\|"_L1);
}

QString commandTable(const TableWords &words)
{
    const SeedTable table = seedTable(u"commands"_s);
    QStringList lines{u"| %1 | %2 |"_s.arg(words.command, words.description), u"| --- | --- |"_s};
    for (const QStringList &row : table.rows)
        lines.append(u"| `%1` | %2 |"_s.arg(cell(table.cell(row, u"Comando")), cell(table.cell(row, words.column))));
    return lines.join(u'\n');
}

} // namespace

QString guideText(const QString &source)
{
    QString text = source;
    for (const TableWords &words : kTables)
        if (text.contains(words.mark))
            text.replace(words.mark, commandTable(words));
    return text;
}
