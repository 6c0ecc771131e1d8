#include "startup.h"

#include "acceptedaddress.h"
#include "backups.h"
#include "catalogue.h"
#include "connectionbar.h"
#include "home.h"
#include "plaintext.h"
#include "settingkeys.h"
#include "settings.h"
#include "surveyjournal.h"
#include "systemopener.h"

#include <QTimer>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

QString windowStateFile()
{
    return stateFolder() + "/window.ini"_L1;
}

/// The log of the program that runs, for the end that comes from below: the toolkit ends us at once when its display
/// goes away.
static ExchangeLog *runningLog = nullptr;

static void flushRunningLog()
{
    if (runningLog)
        runningLog->flush();
}

Startup::Startup(const StartOptions &options)
    : m_options(options),
      m_log(stateFolder()),
      m_store(configStore(homeFolder(options.home)), StoreQueue::Waiting::ByTimer),
      m_boxes([this] { return m_session.language(); }),
      m_session({.port = m_port,
                 .store = m_store,
                 .boxes = m_boxes,
                 .deviceFor = [this](const PortAddress &address) { return m_resolver.deviceFor(address); },
                 .open =
                     [this](const QString &address) {
                         if (!openWithSystem(address))
                             m_boxes.message({{u"DOCUMENT_NOT_OPENED"_s, {address}}});
                     }}),
      m_window({m_session, m_log, portsOfThisMachine}),
      m_import(m_session)
{
    runningLog = &m_log;
    std::atexit(&flushRunningLog);
    m_boxes.setParent(&m_window);
    m_log.watch(m_port);
    QObject::connect(&m_window, &Inicial::importWanted, &m_import, [this] { m_import.offer(Occasion::AboutBox); });
}

Startup::~Startup()
{
    QObject::connect(&m_session, &Session::storeFailed, &m_window, [](const Trouble &trouble) {
        std::fputs(qPrintable(u"tavimo-prelt: not kept: "_s + trouble.what.arguments.join(u' ') + u'\n'), stderr);
    });
    runningLog = nullptr;
    m_store.finish();
    if (!keepWindowState(m_window.state(), windowStateFile()))
        std::fputs(qPrintable(u"tavimo-prelt: the window's layout was not kept in %1\n"_s.arg(windowStateFile())),
                   stderr);
}

/// Kept as it changes, not only at the end: a bench's computer is switched off without asking.
void Startup::keepLayout()
{
    const auto keep = [this] {
        keepWindowState(m_window.state(), windowStateFile());
    }; // the end tells when it cannot be
    QObject::connect(&m_window, &Inicial::screensChanged, &m_window, keep);
    QObject::connect(&m_window, &Inicial::themeChosen, &m_window, keep);
    QObject::connect(&m_session, &Session::portOpened, &m_window, keep);
}

void Startup::keepBackup()
{
    m_store.run<bool>( // a locked store is tried again
        Store::Access::Read, [path = m_store.path()](Store &) { return rollBackups(path); }, &m_window,
        [this](const Result<bool> &kept) {
            if (!kept)
                m_window.showNotice(kept.trouble());
        });
}

/// Without the model there is nothing to read by: the technician is asked for it first.
void Startup::readOnceConnected()
{
    QObject::connect(
        &m_session, &Session::connectionSettled, &m_window,
        [this] {
            if (m_session.isModelKnown())
                m_window.readScreen(m_options.screen);
        },
        Qt::SingleShotConnection);
}

void Startup::probeInternet()
{
    QObject::connect(&m_reachability, &Reachability::unreachable, &m_window,
                     [this] { m_boxes.message({{u"MSG_INTERNET_GERAL"_s}}); });
    m_session.withStore<QString>(
        Store::Access::Read, [](Store &store) { return checkedSetting(store, u"probe-address"_s); }, &m_window,
        [this](const QString &address) {
            if (address.isEmpty() || isAcceptedHere(address))
                m_reachability.probe(address);
            else
                m_session.refuse({u"PROBE_NOT_ACCEPTED"_s, {address}});
        });
}

void Startup::lookAround()
{
    keepBackup();
    SurveyJournal::closeLeftOpen(m_store, &m_window);
    m_import.offer(Occasion::Start);
    probeInternet();
    if (m_options.connects) // a phone is not asked while nobody has time to listen
        m_window.Botoes_Click(1);
}

void Startup::begin()
{
    m_session.load();
    m_window.restore(windowStateFrom(windowStateFile()));
    if (!m_options.port.isEmpty())
        m_window.connectionBar().setPort(m_options.port);
    m_window.askForTerms();
    m_window.show();
    if (!m_options.screen.isEmpty())
        m_window.openScreen(m_options.screen);
    m_window.showLog(m_options.showsLog);
    keepLayout();
    if (m_options.reads)
        readOnceConnected();
    QTimer::singleShot(0, &m_window, [this] { lookAround(); }); // the window comes first
}

static void showCritical(const QString &title, const QStringList &lines)
{
    QMessageBox *box = plainBox(title, lines.join(u'\n'), QMessageBox::NoButton);
    box->setIcon(QMessageBox::Critical);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open(); // the program ends with its last window
}

void showStoreMissing(const QString &path)
{
    const auto missing = message({u"ARQUIVO_AUSENTE"_s}, Language::Portuguese);
    std::fputs(qPrintable(u"tavimo-prelt: no store at %1; make one with: prelt store init\n"_s.arg(path)), stderr);
    showCritical(missing->title, missing->lines);
}

void showStoreRefused(const Trouble &trouble)
{
    QStringList lines;
    for (const Language language : {Language::Portuguese, Language::English, Language::Spanish})
        if (const auto refused = message(trouble.what, language))
            lines += refused->lines + QStringList{QString()};
    std::fputs(qPrintable(u"tavimo-prelt: "_s + lines.join(u' ').simplified() + u'\n'), stderr);
    showCritical(u"Tavimo Prelt"_s, lines);
}
