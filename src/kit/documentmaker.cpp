#include "documentmaker.h"

#include "reportpdf.h"
#include "session.h"
#include "settings.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QtConcurrent>

using namespace Qt::StringLiterals;

DocumentMaker::DocumentMaker(Session &session, QObject *parent) : QObject(parent), m_session(session)
{
    connect(&m_watcher, &QFutureWatcherBase::finished, this, &DocumentMaker::end);
}

QString DocumentMaker::folder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + "/Tavimo Prelt"_L1;
}

QString DocumentMaker::freePath(const QString &folder, const QString &name)
{
    const QDir place(folder);
    place.mkpath(u"."_s); // what fails here is told by the writing
    QString path = place.filePath(name + ".pdf"_L1);
    for (int copy = 2; QFileInfo::exists(path); ++copy)
        path = place.filePath(u"%1 (%2).pdf"_s.arg(name).arg(copy));
    return path;
}

void DocumentMaker::make(const ReportDocument &document, const QString &path, Afterwards afterwards)
{
    m_session.withStore<QString>(
        Store::Access::Read, [](Store &store) { return setting(store, u"logo"_s); }, this,
        [this, document, path, afterwards](const QString &logo) {
            ReportDocument complete = document;
            complete.logoFile = logo;
            write(complete, path, afterwards);
        });
}

void DocumentMaker::write(const ReportDocument &document, const QString &path, Afterwards afterwards)
{
    if (isBusy())
        return;
    m_path = path;
    m_logo = document.logoFile;
    m_afterwards = afterwards;
    m_watcher.setFuture(QtConcurrent::run(writeReport, document, path));
    emit busyChanged();
}

void DocumentMaker::end()
{
    emit busyChanged();
    const Result<Done> made = m_watcher.result();
    if (!made)
        return m_session.boxes().message(made.trouble());
    if (const std::optional<Notice> missing = logoTrouble(m_logo))
        m_session.boxes().message({*missing});
    emit written(m_path);
    if (m_afterwards == Afterwards::Open)
        m_session.openDocument(m_path);
    else
        m_session.refuse({u"PDF_SAVED"_s, {m_path}});
}
