#pragma once

#include "findingsmodel.h"
#include "language.h"

#include <QWidget>

class FindingsList;
class QLabel;
class QToolButton;

/// The right side of the window: what the readings of this session judged faulty.
class FindingsPanel : public QWidget
{
    Q_OBJECT

public:
    explicit FindingsPanel(QWidget *parent = nullptr);

    void add(const QList<Judgement> &judgements) { m_findings.add(judgements); }
    void clear() { m_findings.clear(); }
    int count() const { return m_findings.openCount(); }
    void Traducao_Form(Language language);

signals:
    void countChanged();
    void findingChosen(const QString &screen, const QString &what);

private:
    FindingsModel m_findings;
    QLabel *m_title;
    QToolButton *m_clear;
    FindingsList *m_list;
};
