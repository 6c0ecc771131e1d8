#include "reportexport.h"

#include "catalogue.h"
#include "settingkeys.h"
#include "settings.h"

#include <QDateTime>

using namespace Qt::StringLiterals;

QString reportDate()
{
    return QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat);
}

ReportDocument reportDocument(const Panel &panel, const ReportHead &head)
{
    const QString screen = panel.title.section(u" - Tavimo Prelt"_s, 0, 0);
    ReportDocument document{.title = caption(u"Relatório", head.language) + " - "_L1 + screen,
                            .shop = head.name,
                            .model = head.model,
                            .date = head.date,
                            .language = head.language};
    if (panel.report)
        for (const ReportRow &row : panel.report->rows)
            document.findings.append(row.finding);
    return document;
}

ReportExport::ReportExport(Screen &screen, QString folder, QObject *parent)
    : QObject(parent), m_screen(screen), m_folder(std::move(folder)), m_maker(screen.session())
{
    connect(&m_maker, &DocumentMaker::busyChanged, this, &ReportExport::busyChanged);
    connect(&m_maker, &DocumentMaker::written, this, &ReportExport::written);
}

bool ReportExport::hasSomething()
{
    const bool has = m_screen.hasReading() && m_screen.reading().report;
    if (!has)
        m_screen.session().boxes().message({{u"PRIMEIRO_LEITURA"_s}});
    return has;
}

/// Whatever is read while the box is open.
ReportExport::Order ReportExport::order() const
{
    const Session &session = m_screen.session();
    return {m_screen.reading(), {reportDate(), session.language(), session.model(), {}}};
}

ReportExport::Order ReportExport::under(const QString &name, Order order)
{
    order.head.name = name;
    return order;
}

void ReportExport::btExportar_Click()
{
    if (!isBusy() && hasSomething())
        askName(order());
}

void ReportExport::askName(const Order &order)
{
    const Language language = order.head.language;
    const Question question{caption(u"Relatório", language) + " - PDF"_L1, caption(u"DIGITE SEU NOME", language)};
    const auto answered = [self = QPointer(this), order](const QString &name) {
        if (self && !name.isNull())
            self->sendOrMake(under(name, order));
    };
    Session &session = m_screen.session();
    session.withStore<QString>(
        Store::Access::Read, [](Store &store) { return technicianName(store); }, this,
        [&session, question, answered](const QString &stored) { session.boxes().input(question, stored, answered); });
}

void ReportExport::sendOrMake(const Order &order)
{
    Session &session = m_screen.session();
    session.keep([name = order.head.name](Store &store) { return setTechnicianName(store, name); });
    session.withStore<QString>(
        Store::Access::Read, [](Store &store) { return checkedSetting(store, u"report-host"_s); }, this,
        [this, &session, order](const QString &host) {
            if (host.isEmpty()) {
                m_maker.make(reportDocument(order.panel, order.head),
                             DocumentMaker::freePath(m_folder, suggestedName()), DocumentMaker::Afterwards::Open);
            } else {
                session.openAddress(reportAddress(host, *order.panel.report, order.head));
            }
        });
}

void ReportExport::savePdf(const QString &path)
{
    if (isBusy() || !hasSomething())
        return;
    const auto named = [this, path, order = order()](const QString &stored) {
        m_maker.make(reportDocument(order.panel, under(stored, order).head), path, DocumentMaker::Afterwards::Tell);
    };
    m_screen.session().withStore<QString>(
        Store::Access::Read, [](Store &store) { return technicianName(store); }, this, named);
}

QString ReportExport::suggestedName() const
{
    const QString now = QDateTime::currentDateTime().toString(u"yyyy-MM-dd HH.mm.ss"_s);
    return QStringList{m_screen.name(), m_screen.session().model(), now}.join(u' ').simplified();
}
