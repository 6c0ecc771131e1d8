#pragma once

#include "session.h"

#include <QFrame>

class QLabel;
class QPushButton;

/// What the program promises and what it does not, until the user agrees. It is no box: the language can be chosen
/// first, and nothing waits for it.
class TermsBanner : public QFrame
{
    Q_OBJECT

public:
    explicit TermsBanner(Session &session, QWidget *parent = nullptr);

    /// Shows itself unless the user agreed in an earlier start.
    void showUnlessAccepted();
    void Traducao_Form();

signals:
    void declined();

private:
    void accept();

    Session &m_session;
    QLabel *m_terms;
    QPushButton *m_yes;
    QPushButton *m_no;
};
