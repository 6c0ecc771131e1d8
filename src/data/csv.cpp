#include "csv.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

class CsvReader
{
public:
    explicit CsvReader(QStringView text) : m_rest(text.startsWith(u'\ufeff') ? text.mid(1) : text) {}

    bool atEnd() const { return m_rest.isEmpty(); }

    std::optional<QStringList> record()
    {
        QStringList cells;
        do {
            const std::optional<QString> next = takeFront(u'"') ? quotedCell() : plainCell();
            if (!next)
                return {};
            cells += *next;
        } while (takeFront(u','));
        return takeLineEnd() ? std::optional(cells) : std::nullopt;
    }

private:
    bool takeFront(QChar wanted)
    {
        if (!m_rest.startsWith(wanted))
            return false;
        m_rest = m_rest.mid(1);
        return true;
    }

    bool takeLineEnd()
    {
        if (atEnd())
            return true;
        takeFront(u'\r');
        return takeFront(u'\n');
    }

    QString plainCell()
    {
        qsizetype end = 0;
        while (end < m_rest.size() && m_rest[end] != u',' && m_rest[end] != u'\n')
            ++end;
        if (end > 0 && end < m_rest.size() && m_rest[end] == u'\n' && m_rest[end - 1] == u'\r')
            --end;
        return std::exchange(m_rest, m_rest.mid(end)).left(end).toString();
    }

    std::optional<QString> quotedCell()
    {
        QString cell;
        for (qsizetype quote = m_rest.indexOf(u'"'); quote >= 0; quote = m_rest.indexOf(u'"')) {
            cell += m_rest.left(quote);
            m_rest = m_rest.mid(quote + 1);
            if (!takeFront(u'"'))
                return cell;
            cell += u'"';
        }
        return {};
    }

    QStringView m_rest;
};

bool isNumber(const QString &text)
{
    static const QRegularExpression kNumber(uR"(^[+-]?\d+([.,]\d+)?( ?(%|V|mV|mA|A|C|Ohm))?\z)"_s);
    return kNumber.match(text).hasMatch();
}

bool isGuarded(const QString &value, CsvGuard guard)
{
    static constexpr QStringView kActing = u"=+-@\uff1d\uff0b\uff0d\uff20\t\r\n";
    if (value.isEmpty())
        return false;
    if (guard == CsvGuard::Exact)
        return kActing.contains(value.front()) || value.front() == u'\'';
    return kActing.contains(value.front()) && !isNumber(value);
}

QString written(const QString &value, CsvGuard guard)
{
    QString cell = isGuarded(value, guard) ? u'\'' + value : value;
    const bool plain =
        std::ranges::none_of(cell, [](QChar letter) { return QStringView(u",;\t\r\n\x22").contains(letter); });
    return plain ? cell : u'"' + cell.replace(u'"', R"("")"_L1) + u'"';
}

} // namespace

std::optional<QList<QStringList>> csvRecords(QStringView text)
{
    QList<QStringList> records;
    for (CsvReader reader(text); !reader.atEnd();) {
        const std::optional<QStringList> record = reader.record();
        if (!record)
            return {};
        records += *record;
    }
    return records;
}

QString csvText(const QList<QStringList> &records, CsvGuard guard)
{
    QString text;
    for (const QStringList &record : records) {
        QStringList cells;
        for (const QString &value : record)
            cells += written(value, guard);
        text += cells.join(u',') + "\r\n"_L1;
    }
    return text;
}

QString unguarded(const QString &cell)
{
    return cell.startsWith(u'\'') ? cell.mid(1) : cell;
}
