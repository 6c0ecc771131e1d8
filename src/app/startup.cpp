#include "startup.h"

#include "catalogue.h"
#include "connectionbar.h"
#include "home.h"
#include "settings.h"

#include <QDesktopServices>
#include <QMessageBox>
#include <QUrl>

#include <cstdio>

using namespace Qt::StringLiterals;

Startup::Startup(const StartOptions &options)
    : m_options(options),
      m_store(configStore(homeFolder(options.home)), StoreQueue::Waiting::ByTimer),
      m_boxes([this] { return m_session.language(); }),
      m_session({.port = m_port,
                 .store = m_store,
                 .boxes = m_boxes,
                 .deviceFor = [this](const PortAddress &address) { return m_resolver.deviceFor(address); },
                 .open = [](const QString &address) { QDesktopServices::openUrl(QUrl(address)); }}),
      m_window(m_session, portsOfThisMachine)
{
    m_boxes.setParent(&m_window);
}

void Startup::probeInternet()
{
    QObject::connect(&m_reachability, &Reachability::unreachable, &m_window,
                     [this] { m_boxes.message({{u"MSG_INTERNET_GERAL"_s}}); });
    m_session.withStore<QString>(
        Store::Access::Read, [](Store &store) { return setting(store, u"probe-address"_s); }, &m_window,
        [this](const QString &address) { m_reachability.probe(address); });
}

void Startup::begin()
{
    m_session.load();
    probeInternet();
    if (!m_options.port.isEmpty())
        m_window.connectionBar().setPort(m_options.port);
    m_window.show();
    if (!m_options.screen.isEmpty())
        m_window.openScreen(m_options.screen);
    if (m_options.reads)
        QObject::connect(
            &m_session, &Session::connectionSettled, &m_window, [this] { m_window.readScreen(m_options.screen); },
            Qt::SingleShotConnection);
    if (m_options.connects)
        m_window.Botoes_Click(1);
}

void showStoreMissing(const QString &path)
{
    const auto missing = message({u"ARQUIVO_AUSENTE"_s}, Language::Portuguese);
    std::fputs(qPrintable(u"tavimo-prelt: no store at %1; make one with: prelt store init\n"_s.arg(path)), stderr);
    auto *box = new QMessageBox(QMessageBox::Critical, missing->title, missing->lines.join(u'\n'));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open(); // the program ends with its last window
}
