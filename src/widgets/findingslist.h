#pragma once

#include "findingsmodel.h"

#include <QListView>

/// The list of findings; a click on one goes to it.
class FindingsList : public QListView
{
    Q_OBJECT

public:
    explicit FindingsList(FindingsModel &findings, QWidget *parent = nullptr);

    void setEmptyText(const QString &text);

signals:
    void findingChosen(const QString &screen, const QString &what);

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void choose(const QModelIndex &index);

    FindingsModel &m_findings;
    QString m_emptyText;
};
