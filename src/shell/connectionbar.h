#pragma once

#include "portlist.h"
#include "session.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QPushButton;
class QToolButton;
class StatusLamp;

/// The top of the window: lamp, port, speed, connect button and the phone's model.
class ConnectionBar : public QWidget
{
    Q_OBJECT

public:
    explicit ConnectionBar(Session &session, QWidget *parent = nullptr);

    QString port() const;
    void setPort(const QString &port);
    /// Lists the ports of the machine and selects the highest; a typed port stays.
    void listPorts(const QList<PortEntry> &ports);
    void Traducao_Form();
    /// Puts the focus on the model selector that is shown, unless somebody types.
    void focusModel();

signals:
    void portsWanted();
    void connectPressed(const QString &port);

private:
    void layOut();
    void connectControls();
    void paintStatus();
    void paintModel();
    void paintDevice();

    Session &m_session;
    StatusLamp *m_imgStatus;
    QLabel *m_lbFramePorta;
    QComboBox *m_cbPortas;
    QLabel *m_lbBox;
    QToolButton *m_imgAtualizar;
    QLabel *m_lbSpeed;
    QComboBox *m_comboBox;
    QPushButton *m_connect;
    QLabel *m_lbModeloFundo;
    QComboBox *m_comboAparelhos;
    QComboBox *m_comboAparelhosX;
    QLabel *m_lbModelo;
    QLabel *m_lbTristarTigris;
    QLabel *m_lbSimulado;
};
