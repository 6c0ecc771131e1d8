#pragma once

#include "connectionbar.h"
#include "inicial.h"
#include "portresolver.h"
#include "seeds.h"
#include "serialport.h"
#include "windowboxes.h"

#include <QMessageBox>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

// A poll must be longer than the phone takes from the first byte to the prompt.
inline constexpr Intervals kQuick{.validaPorta = 10ms, .fecha = 10ms, .poll = 200ms};

/// The whole window over a store of its own; only what opens documents is left out.
struct Bench
{
    /// `fill` finds the store as it was made.
    explicit Bench(void (*fill)(Store &) = nullptr)
    {
        if (Result<Store> made = Store::open(path, Store::Access::Write, 1s); fill && made)
            fill(*made);
        boxes.setParent(&window);
        session.load();
        window.show();
        window.activateWindow();
        (void)QTest::qWaitForWindowActive(&window);
    }

    template <typename T>
    T *control(const QString &name) const
    {
        return window.findChild<T *>(name);
    }
    void click(const QString &name) const { QTest::mouseClick(control<QWidget>(name), Qt::LeftButton); }
    void connectTo(const QString &address) const
    {
        window.connectionBar().setPort(address);
        click(u"Botoes(1)"_s);
    }
    QMessageBox *box() const { return window.findChild<QMessageBox *>(); }
    QString front() const { return control<QTabWidget>(u"Abas"_s)->currentWidget()->objectName(); }

    QTemporaryDir home;
    QString path = made(home.filePath(u"Config.pmx"_s));
    SerialPort port;
    PortResolver resolver{0};
    StoreQueue store{path, StoreQueue::Waiting::ByTimer};
    WindowBoxes boxes{[this] { return session.language(); }};
    Session session{{.port = port,
                     .store = store,
                     .boxes = boxes,
                     .deviceFor = [this](const PortAddress &address) { return resolver.deviceFor(address); },
                     .intervals = kQuick}};
    ExchangeLog log{home.filePath(u"log"_s)};
    Inicial window{{session, log, [] { return QList<PortEntry>(); }}};

private:
    static QString made(const QString &path) { return createStore(path) ? path : QString(); }
};
