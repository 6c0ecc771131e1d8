#pragma once

#include "exchangelog.h"
#include "importoffer.h"
#include "inicial.h"
#include "portresolver.h"
#include "reachability.h"
#include "serialport.h"
#include "startoptions.h"
#include "storequeue.h"
#include "windowboxes.h"

/// The running program: everything the window stands on, put together in the order of the start.
class Startup
{
public:
    explicit Startup(const StartOptions &options);
    ~Startup();

    void begin();

private:
    void lookAround();
    void probeInternet();
    void keepBackup();
    void keepLayout();
    void readOnceConnected();

    StartOptions m_options;
    ExchangeLog m_log;
    SerialPort m_port;
    PortResolver m_resolver;
    StoreQueue m_store;
    WindowBoxes m_boxes;
    Session m_session;
    Inicial m_window;
    ImportOffer m_import;
    Reachability m_reachability;
};

/// Where the window's layout is kept.
QString windowStateFile();

/// Says in three languages that the reference store is missing.
void showStoreMissing(const QString &path);

/// Says why the reference store cannot be worked with; its language is not known then.
void showStoreRefused(const Trouble &trouble);
