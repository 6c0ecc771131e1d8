#pragma once

#include "port.h"

/// A saved reply in the place of a phone: whatever is written, its bytes are the answer.
class ReplayPort : public Port
{
    Q_OBJECT

public:
    explicit ReplayPort(QByteArray reply, QObject *parent = nullptr);

    Result<Done> open(const QString &device) override;
    void close() override;
    bool isOpen() const override;
    void write(const QByteArray &bytes) override;
    QByteArray read() override;
    void discardInput() override;

private:
    QByteArray m_reply;
    QByteArray m_arrived;
    bool m_open = false;
};
