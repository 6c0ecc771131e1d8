#pragma once

#include "result.h"

#include <QByteArray>
#include <QObject>

/// A serial line to the Box, as the session sees it: opened by device path at 115200,N,8,1 and never blocking.
class Port : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Opens a device. Trouble when it is not there, in use, not permitted or no serial port; then nothing is open.
    virtual Result<Done> open(const QString &device) = 0;
    virtual void close() = 0;
    virtual bool isOpen() const = 0;
    virtual void write(const QByteArray &bytes) = 0;
    /// Everything that has arrived since the last read; empty when nothing has. What nobody reads is kept up to some
    /// megabytes, the newest.
    virtual QByteArray read() = 0;
    /// Drops what has arrived and was not read.
    virtual void discardInput() = 0;

signals:
    /// A connection begins; whatever passes from now on is another phone's, for all we know.
    void opened(const QString &device);
    /// The line is gone and has been closed; sent once. What had arrived can still be read.
    void lost();
    /// Bytes as they pass, for the exchange log; also those that `discardInput` drops.
    void received(const QByteArray &bytes);
    void sent(const QByteArray &bytes);
};
