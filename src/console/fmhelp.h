#pragma once

#include "fmhelpscreen.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;
class TextPane;

/// The help window: a list of commands, of which a double click takes one over.
class fmHelp : public QDialog
{
    Q_OBJECT

public:
    explicit fmHelp(Session &session, QWidget *parent = nullptr);

    /// Shows a recorded list, and asks the phone for its own.
    void begin(const QString &recorded);
    void Traducao_Form();

signals:
    void lineChosen(const QString &line);
    void commandAdded();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QString lineAtCursor() const;

    fmHelpScreen m_screen;
    TextPane *m_txtConsole;
    QLabel *m_lbClick;
    QLineEdit *m_txt2;
    QPushButton *m_btAdd;
};
