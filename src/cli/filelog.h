#pragma once

#include "exchangeline.h"
#include "port.h"
#include "result.h"

#include <QFile>
#include <QObject>

/// The exchange of one command, line by line in a file of the person's choice; what the file held before stays.
class FileLog : public QObject
{
    Q_OBJECT

public:
    explicit FileLog(const QString &path) : m_file(path) {}

    Result<Done> open();
    void watch(Port &port);
    /// Something could not be written.
    bool isBroken() const { return m_broken; }
    Trouble trouble() const;

private:
    void take(Exchange::Direction direction, const QByteArray &bytes);
    void write(const QByteArray &line);

    QFile m_file;
    bool m_broken = false;
};
