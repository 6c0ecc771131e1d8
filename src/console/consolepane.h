#pragma once

#include <QWidget>

class MasterScreen;
class QCheckBox;
class PlainLabel;
class QLabel;
class QPushButton;
class TextPane;

/// What the phone answered, as it arrives and when it is there.
class ConsolePane : public QWidget
{
    Q_OBJECT

public:
    explicit ConsolePane(MasterScreen &screen, QWidget *parent = nullptr);

    void Traducao_Form();
    TextPane *console() const { return m_txtConsole; }

signals:
    void cleared();

private:
    QWidget *head();
    void showConsole();
    void tellShownLines();

    MasterScreen &m_screen;
    QLabel *m_ldDispConect;
    PlainLabel *m_lbLinhas;
    TextPane *m_txtConsole;
    QCheckBox *m_ckLimpar;
    QPushButton *m_btLimpar;
};
