#pragma once

#include "readingform.h"

class BuckTesteScreen;
class LineList;
class QComboBox;

/// The form of the phone's own check of its bucks.
class BuckTeste : public ReadingForm
{
    Q_OBJECT

public:
    explicit BuckTeste(Session &session, QWidget *parent = nullptr);

    void Traducao_Form() override;
    void goTo(const QString &what) override;

protected:
    void paintPanel() override;
    QStringView readHint() const override { return u"DICA_BUCK"; }
    QString ownHint() const override;

private:
    QWidget *choice();
    QWidget *lists();
    void connectControls();

    BuckTesteScreen &m_bucks;
    QPushButton *m_btBl;
    QPushButton *m_botao1;
    QPushButton *m_botao2;
    QLabel *m_label1;
    QComboBox *m_combo1;
    QLabel *m_lbDispositivo;
    QLabel *m_lbComparador;
    LineList *m_listView;
    LineList *m_listViewComparador;
};
