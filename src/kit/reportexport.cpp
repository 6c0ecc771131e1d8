#include "reportexport.h"

#include "catalogue.h"
#include "reportpdf.h"
#include "settings.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QtConcurrent>

using namespace Qt::StringLiterals;

QString reportDate()
{
    return QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat);
}

ReportDocument reportDocument(const Panel &panel, const ReportHead &head, const QString &logo)
{
    const QString screen = panel.title.section(u" - Tavimo Prelt"_s, 0, 0);
    ReportDocument document{.title = caption(u"Relatório", head.language) + " - "_L1 + screen,
                            .shop = head.name,
                            .logoFile = logo,
                            .model = head.model,
                            .date = head.date,
                            .language = head.language};
    if (panel.report)
        for (const ReportRow &row : panel.report->rows)
            document.findings.append(row.finding);
    return document;
}

QString ReportExport::documentsFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + "/Tavimo Prelt"_L1;
}

ReportExport::ReportExport(Screen &screen, QString folder, QObject *parent)
    : QObject(parent), m_screen(screen), m_folder(std::move(folder))
{
    connect(&m_watcher, &QFutureWatcherBase::finished, this, &ReportExport::end);
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
        Store::Access::Read, [](Store &store) { return setting(store, u"report-host"_s); }, this,
        [this, &session, order](const QString &host) {
            if (host.isEmpty())
                make(order, newPath(), Afterwards::Open);
            else
                session.openAddress(reportAddress(host, *order.panel.report, order.head));
        });
}

void ReportExport::savePdf(const QString &path)
{
    if (isBusy() || !hasSomething())
        return;
    const auto named = [this, path, order = order()](const QString &stored) {
        make(under(stored, order), path, Afterwards::Nothing);
    };
    m_screen.session().withStore<QString>(
        Store::Access::Read, [](Store &store) { return technicianName(store); }, this, named);
}

void ReportExport::make(const Order &order, const QString &path, Afterwards afterwards)
{
    if (isBusy())
        return;
    m_path = path;
    m_afterwards = afterwards;
    m_screen.session().withStore<QString>(
        Store::Access::Read, [](Store &store) { return setting(store, u"logo"_s); }, this,
        [this, order](const QString &logo) {
            QDir().mkpath(QFileInfo(m_path).absolutePath()); // what fails here is told by the writing
            m_watcher.setFuture(QtConcurrent::run(writeReport, reportDocument(order.panel, order.head, logo), m_path));
            emit busyChanged();
        });
}

void ReportExport::end()
{
    emit busyChanged();
    const Result<Done> made = m_watcher.result();
    if (!made)
        return m_screen.session().boxes().message(made.trouble());
    emit written(m_path);
    if (m_afterwards == Afterwards::Open)
        m_screen.session().openDocument(m_path);
    else
        m_screen.session().refuse({u"PDF_SAVED"_s, {m_path}});
}

QString ReportExport::suggestedName() const
{
    const QString now = QDateTime::currentDateTime().toString(u"yyyy-MM-dd HH.mm.ss"_s);
    return QStringList{m_screen.name(), m_screen.session().model(), now}.join(u' ').simplified();
}

/// A document that was handed out is never overwritten.
QString ReportExport::newPath() const
{
    const QDir folder(m_folder);
    QString path = folder.filePath(suggestedName() + ".pdf"_L1);
    for (int copy = 2; QFileInfo::exists(path); ++copy)
        path = folder.filePath(u"%1 (%2).pdf"_s.arg(suggestedName()).arg(copy));
    return path;
}
