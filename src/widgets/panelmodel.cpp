#include "panelmodel.h"

#include "glyph.h"
#include "plaintext.h"
#include "sourcetext.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

PanelModel::PanelModel(std::span<const GridColumn> columns, QObject *parent)
    : QAbstractTableModel(parent), m_columns(columns.begin(), columns.end())
{
}

void PanelModel::setLanguage(Language language)
{
    m_language = language;
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    if (!m_rows.isEmpty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    emit shown();
}

QString PanelModel::identity(const Row &row) const
{
    QString names;
    for (const GridColumn &column : m_columns) {
        if (column.kind == ColumnKind::Name)
            names += row.cell(column.key) + QChar::Tabulation;
    }
    return names;
}

QStringList PanelModel::identities(const QList<Row> &rows) const
{
    QStringList names;
    for (const Row &row : rows)
        names.append(identity(row));
    return names;
}

static bool isReordering(const QStringList &before, const QStringList &after)
{
    const QSet<QString> names(before.begin(), before.end());
    return names.size() == before.size() && before.size() == after.size() &&
           names == QSet<QString>(after.begin(), after.end());
}

void PanelModel::show(const QList<Row> &rows)
{
    if (rows == m_rows)
        return;
    const QStringList before = identities(m_rows);
    const QStringList after = identities(rows);
    if (before == after)
        update(rows);
    else if (isReordering(before, after))
        reorder(rows);
    else
        reset(rows);
    emit shown();
}

void PanelModel::update(const QList<Row> &rows)
{
    for (int place = 0; place < rows.size(); ++place) {
        if (m_rows.at(place) == rows.at(place))
            continue;
        m_rows[place] = rows.at(place);
        emit dataChanged(index(place, 0), index(place, columnCount() - 1));
    }
}

void PanelModel::reorder(const QList<Row> &rows)
{
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const QStringList before = identities(m_rows);
    const QStringList after = identities(rows);
    m_rows = rows;
    const QModelIndexList kept = persistentIndexList();
    for (const QModelIndex &old : kept) {
        const auto place = static_cast<int>(after.indexOf(before.at(old.row())));
        changePersistentIndex(old, index(place, old.column()));
    }
    emit layoutChanged({}, VerticalSortHint);
}

void PanelModel::reset(const QList<Row> &rows)
{
    beginResetModel();
    m_rows = rows;
    endResetModel();
}

int PanelModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int PanelModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

static QString driftText(std::optional<double> percent)
{
    if (!percent)
        return {};
    const QString number = QString::number(*percent, 'f', 1);
    return (number == "0.0"_L1 || number == "-0.0"_L1 ? u"0"_s : number) + " %"_L1;
}

QString PanelModel::text(const Row &row, const GridColumn &column) const
{
    if (column.kind == ColumnKind::Drift)
        return driftText(row.largestDrift());
    const QString cell = row.cell(column.key);
    if (column.kind != ColumnKind::Verdict || !cell.isEmpty()) // a verdict may have a word of its own
        return cell;
    // A row that nothing is held against says nothing.
    return row.verdict == Verdict::None ? QString() : verdictCaption(row.verdict, m_language);
}

static QString labelled(QStringView label, const QString &key, Language language)
{
    return key.isEmpty() ? QString() : caption(label, language) + u": "_s + sourceText(key, language);
}

static QString referenceTip(const Row &row, Language language)
{
    QStringList lines{labelled(u"Fonte da referência", row.source, language),
                      labelled(u"Confiança", row.confidence, language)};
    lines.removeAll(QString());
    return lines.join(u'\n');
}

/// Each recorded reading with what the live one has gone away from it.
static QString driftTip(const Row &row, Language language)
{
    static constexpr std::array<std::pair<QStringView, QStringView>, 3> kSlots = {
        {{u"G1", u"Gravação 1"}, {u"G2", u"Gravação 2"}, {u"G3", u"Gravação 3"}}};
    QStringList lines;
    for (std::size_t slot = 0; slot < kSlots.size(); ++slot) {
        const auto &[cell, key] = kSlots.at(slot);
        if (const QString recorded = row.cell(cell); !recorded.isEmpty())
            lines.append(
                u"%1: %2   %3"_s.arg(caption(key, language), recorded, driftText(row.drift.at(slot))).trimmed());
    }
    return lines.join(u'\n');
}

QVariant PanelModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const Row &shown = row(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return text(shown, column(index.column()));
    case Qt::ToolTipRole:
        return plainToolTip(column(index.column()).kind == ColumnKind::Drift ? driftTip(shown, m_language)
                                                                             : referenceTip(shown, m_language));
    case Qt::TextAlignmentRole:
        return static_cast<int>(column(index.column()).alignment());
    default:
        return {};
    }
}

QVariant PanelModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>(column(section).alignment());
    return role == Qt::DisplayRole ? caption(column(section).caption, m_language) : QVariant();
}
