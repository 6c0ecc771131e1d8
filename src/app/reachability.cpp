#include "reachability.h"

#include <QNetworkReply>
#include <QNetworkRequest>

using namespace std::chrono_literals;

void Reachability::probe(const QString &address)
{
    if (address.isEmpty())
        return;
    m_network = std::make_unique<QNetworkAccessManager>();
    QNetworkRequest request((QUrl(address)));
    request.setTransferTimeout(static_cast<int>(std::chrono::milliseconds(10s).count()));
    QNetworkReply *reply = m_network->get(request);
    connect(reply, &QNetworkReply::finished, this, [this, reply] {
        reply->deleteLater();
        if (reply->error() != QNetworkReply::NoError)
            emit unreachable();
    });
}
