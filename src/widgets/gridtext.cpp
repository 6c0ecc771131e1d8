#include "gridtext.h"

#include "visibletext.h"

#include <QAbstractItemModel>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

/// A tab or a line break inside a cell would tear the table apart.
static QString inOneCell(const QModelIndex &cell)
{
    return visibleText(cell.data().toString().simplified());
}

QString copiedText(QModelIndexList cells)
{
    std::sort(cells.begin(), cells.end());
    QString text;
    for (qsizetype place = 0; place < cells.size(); ++place) {
        if (place > 0)
            text += cells.at(place).row() == cells.at(place - 1).row() ? u'\t' : u'\n';
        text += inOneCell(cells.at(place));
    }
    return text;
}

QList<QStringList> tableText(const QAbstractItemModel &model)
{
    QList<QStringList> lines(model.rowCount() + 1);
    for (int column = 0; column < model.columnCount(); ++column) {
        lines[0].append(model.headerData(column, Qt::Horizontal).toString());
        for (int row = 0; row < model.rowCount(); ++row)
            lines[row + 1].append(visibleText(model.index(row, column).data().toString()));
    }
    return lines;
}

static bool isNumber(const QString &text)
{
    static const QRegularExpression kNumber(uR"(^[+-]?\d+([.,]\d+)?( ?(%|V|mV|mA|A|C|Ohm))?\z)"_s);
    return kNumber.match(text).hasMatch();
}

static bool isFormula(const QString &text)
{
    static constexpr auto kStarts = QStringView(u"=+-@\uff1d\uff0b\uff0d\uff20\t\r\n");
    return !text.isEmpty() && kStarts.contains(text.front()) && !isNumber(text);
}

QString csvCell(const QString &text)
{
    static const QRegularExpression kSpecial(u"[\",\r\n]"_s);
    QString cell = isFormula(text) ? u'\'' + text : text;
    if (!cell.contains(kSpecial))
        return cell;
    return u'"' + cell.replace(u'"', u"\"\""_s) + u'"';
}

QByteArray csvFile(const QList<QStringList> &lines)
{
    QString file(QChar::ByteOrderMark);
    for (const QStringList &line : lines) {
        QStringList cells;
        for (const QString &text : line)
            cells.append(csvCell(text));
        file += cells.join(u',') + "\r\n"_L1;
    }
    return file.toUtf8();
}
