#pragma once

#include "exchangelog.h"
#include "inicial.h"
#include "picture.h"
#include "portresolver.h"
#include "serialport.h"
#include "storequeue.h"

#include <QTemporaryDir>
#include <QTimer>

/// Agrees with every question and tells what was said on standard error.
class AgreeingBoxes : public Boxes
{
public:
    void message(const Trouble &trouble) override;
    void ask(const Question &question, std::function<void(Answer)> answered) override;
    void input(const Question &question, const QString &proposal,
               std::function<void(const QString &)> answered) override;
};

/// Takes one picture: opens the real window on its phone, reads the screen, and saves what is to be seen once nothing
/// moves any more.
class Photographer : public QObject
{
    Q_OBJECT

public:
    Photographer(Picture picture, QString folder);

    void begin();

signals:
    /// The picture was taken, or the phone never became idle; `saved` tells whether the file is there.
    void finished(bool saved);

private:
    void readScreen();
    void act(const QString &field, const QString &text, const QString &button);
    void watch();
    void shoot(bool isIdle);

    Picture m_picture;
    QString m_folder;
    QTemporaryDir m_home;
    QString m_storePath;
    SerialPort m_port;
    PortResolver m_resolver{0};
    StoreQueue m_store;
    AgreeingBoxes m_boxes;
    Session m_session;
    ExchangeLog m_log;
    Inicial m_window;
    QTimer m_watch;
    int m_idleTicks = 0;
    int m_ticks = 0;
};
