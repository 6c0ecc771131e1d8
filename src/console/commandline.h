#pragma once

#include "commands.h"
#include "language.h"

#include <QComboBox>

class QStandardItemModel;

/// The command line: the list of commands drops down and completes what is typed, each with its description; Up and
/// Down go through what was sent.
class CommandLine : public QComboBox
{
    Q_OBJECT

public:
    explicit CommandLine(const QString &name, QWidget *parent = nullptr);

    /// Fills the list; what is typed stays.
    void setCommands(const QList<CommandRow> &commands, Language language);

signals:
    void olderWanted();
    void newerWanted();
    void sendWanted();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void widen(QWidget &popup) const;

    QStandardItemModel *m_model;
};
