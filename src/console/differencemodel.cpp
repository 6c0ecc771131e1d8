#include "differencemodel.h"

#include "catalogue.h"
#include "plaintext.h"
#include "theme.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// How a kind of row looks: a sign, what it says, a field, and whether it is dimmed.
struct Look
{
    QStringView sign;
    QStringView key;
    QColor Theme::*field = nullptr;
    bool dim = false;
};

const Look &lookOf(DifferenceRow::Kind kind)
{
    static constexpr std::array kLooks = {Look{u"", u""},
                                          Look{u"•", u"Mascarado", nullptr, true},
                                          Look{u"≈", u"Dentro da tolerância", nullptr, true},
                                          Look{u"≠", u"Diferente", &Theme::faultField},
                                          Look{u"+", u"Só na leitura", &Theme::warnField},
                                          Look{u"−", u"Só na gravação", &Theme::warnField}};
    return kLooks.at(static_cast<std::size_t>(kind));
}

QVariant inkOf(const Look &look)
{
    if (look.field)
        return currentTheme().onField;
    return look.dim ? QVariant(currentTheme().dim) : QVariant();
}

} // namespace

void DifferenceModel::show(const ReplyDifference &difference)
{
    beginResetModel();
    m_difference = difference;
    endResetModel();
}

void DifferenceModel::setLanguage(Language language)
{
    m_language = language;
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

int DifferenceModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_difference.rows.size());
}

int DifferenceModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString DifferenceModel::text(const DifferenceRow &row, int column) const
{
    switch (column) {
    case Sign:
        return lookOf(row.kind).sign.toString();
    case Live:
        return row.live;
    case Recorded:
        return row.recorded;
    default:
        return row.change;
    }
}

QString DifferenceModel::tip(const DifferenceRow &row) const
{
    const QStringView key = lookOf(row.kind).key;
    QStringList lines;
    if (!key.isEmpty())
        lines.append(caption(key, m_language));
    for (const QString &line : {row.live, row.recorded, row.change})
        if (!line.isEmpty())
            lines.append(line);
    return tabularToolTip(lines.join(u'\n'));
}

QVariant DifferenceModel::data(const QModelIndex &index, int role) const
{
    const DifferenceRow &row = m_difference.rows.at(index.row());
    const Look &look = lookOf(row.kind);
    switch (role) {
    case Qt::DisplayRole:
        return text(row, index.column());
    case Qt::ToolTipRole:
        return tip(row);
    case Qt::BackgroundRole:
        return look.field ? QVariant(currentTheme().*look.field) : QVariant();
    case Qt::ForegroundRole:
        return inkOf(look);
    case Qt::TextAlignmentRole:
        return index.column() == Sign ? QVariant(Qt::AlignCenter) : QVariant();
    case Qt::AccessibleTextRole:
        return QString(caption(look.key, m_language) + u' ' + text(row, index.column())).trimmed();
    default:
        return {};
    }
}

QVariant DifferenceModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static constexpr std::array kKeys = {u"", u"Leitura do dispositivo", u"Gravação", u"Desvio"};
    if (orientation == Qt::Vertical || role != Qt::DisplayRole)
        return {};
    return caption(kKeys.at(static_cast<std::size_t>(section)), m_language);
}
