#pragma once

#include <QNetworkAccessManager>
#include <QObject>

#include <memory>

/// Asks a configured address once whether the internet can be reached. Without an address nothing is asked.
class Reachability : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    void probe(const QString &address);

signals:
    void unreachable();

private:
    std::unique_ptr<QNetworkAccessManager> m_network; ///< made when it is needed: most benches never ask
};
