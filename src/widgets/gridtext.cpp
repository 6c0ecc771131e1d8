#include "gridtext.h"

#include "csv.h"
#include "visibletext.h"

#include <QAbstractItemModel>

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

QByteArray csvFile(const QList<QStringList> &lines)
{
    return QString(QChar::ByteOrderMark + csvText(lines, CsvGuard::Readable)).toUtf8();
}
