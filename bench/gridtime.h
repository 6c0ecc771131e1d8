#pragma once

#include "buckldo.h"
#include "replayport.h"
#include "session.h"
#include "silentboxes.h"

/// The buck and LDO form over a saved reply, to time a reading of it as a person sees it.
class GridTime : public QObject
{
    Q_OBJECT

public:
    GridTime(const QString &store, const QByteArray &reply);

    int rows() const;
    /// Asks anew; then from the poll that sees the prompt to the grid that was painted, in seconds.
    double promptToPaint();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    ReplayPort m_port;
    StoreQueue m_store;
    SilentBoxes m_boxes;
    Session m_session;
    BuckLdo m_form;
    bool m_painted = false;
};
