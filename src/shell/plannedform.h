#pragma once

#include "moduletable.h"
#include "session.h"

#include <QWidget>

class QLabel;

/// Stands where a screen will be that this version does not have yet, and says so.
class PlannedForm : public QWidget
{
    Q_OBJECT

public:
    PlannedForm(const Module &module, Session &session, QWidget *parent = nullptr);

private:
    void Traducao_Form();

    const Module &m_module;
    Session &m_session;
    QLabel *m_picture;
    QLabel *m_title;
    QLabel *m_note;
};
