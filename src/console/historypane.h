#pragma once

#include <QWidget>

class MasterScreen;
class QLabel;
class QListWidget;
class QPushButton;
class QToolButton;
class TextPane;

/// The commands sent in this session, or the phone's last help, in place of the comparator.
class HistoryPane : public QWidget
{
    Q_OBJECT

public:
    explicit HistoryPane(MasterScreen &screen, QWidget *parent = nullptr);

    void Traducao_Form();
    void showCommands(const QStringList &commands);
    TextPane *help() const { return m_txtHelpAux; }

private:
    MasterScreen &m_screen;
    QLabel *m_lbHistComandos;
    QToolButton *m_lbHelp;
    QPushButton *m_btCloseHistorico;
    QListWidget *m_listCmd;
    TextPane *m_txtHelpAux;
};
