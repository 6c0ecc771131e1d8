#include "reportaddress.h"

using namespace Qt::StringLiterals;

namespace {

QLatin1StringView pageName(ReportPage page)
{
    static constexpr QLatin1StringView kPages[] = {"relatorio/acorn.php?"_L1, "relatorio/chest.php?"_L1,
                                                   "relatorio/index.php?"_L1};
    return kPages[static_cast<std::size_t>(page)];
}

QLatin1StringView word(RowMark mark)
{
    static constexpr QLatin1StringView kWords[] = {"False"_L1, "True"_L1, "3"_L1};
    return kWords[static_cast<std::size_t>(mark)];
}

void removePrefixes(QString &name, int first, int last)
{
    for (int number = first; number <= last; ++number)
        name.remove(QString::number(number) + ". "_L1);
}

/// The numbers with two digits go first: "1. " would break "11. " apart.
QString withoutNumbering(QString name)
{
    removePrefixes(name, 10, 17);
    removePrefixes(name, 1, 9);
    return name;
}

QString rowQuery(const ReportRow &row, int number, ReportPage page)
{
    const ReportFinding &finding = row.finding;
    const QString name = page == ReportPage::Index ? withoutNumbering(finding.what) : finding.what;
    const QString n = QString::number(number);
    return "M"_L1 + n + u'=' + name + "&L"_L1 + n + u'=' + finding.reading + "&R"_L1 + n + u'=' + finding.reference +
           "&P"_L1 + n + u'=' + finding.deviationText + "&I"_L1 + n + u'=' + word(row.mark);
}

QString headQuery(const ReportHead &head)
{
    return "&DATA="_L1 + head.date + "&IDIOMA="_L1 + QString::number(static_cast<int>(head.language)) + "&MODELO="_L1 +
           head.model + "&EMP="_L1 + head.name;
}

} // namespace

QString reportAddress(const QString &host, const ReportSheet &sheet, const ReportHead &head)
{
    QStringList rows;
    for (const ReportRow &row : sheet.rows)
        rows.append(rowQuery(row, static_cast<int>(rows.size()) + 1, sheet.page));
    QString query = rows.join(u'&');
    if (sheet.page == ReportPage::Index)
        query += "&TIPO="_L1 + sheet.type;
    query += headQuery(head);
    query.replace("False"_L1, "0"_L1).replace("True"_L1, "1"_L1).replace(u' ', "%20"_L1);
    const bool isOpen = host.isEmpty() || host.endsWith(u'/');
    return (isOpen ? host : host + u'/') + pageName(sheet.page) + query;
}
