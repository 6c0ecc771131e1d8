#pragma once

#include "panelmodel.h"
#include "result.h"

#include <QStackedWidget>

class JournalScreen;
class PanelGrid;
class TextPane;

/// What the chosen surveys say: the findings of one, its raw exchange, or two of them side by side.
class JournalPages : public QStackedWidget
{
    Q_OBJECT

public:
    explicit JournalPages(const JournalScreen &journal, QWidget *parent = nullptr);

    void Traducao_Form(Language language);
    /// Shows what the screen has come to.
    void showChosen(Language language);
    /// Writes the table that is shown.
    void exportCsv();

signals:
    void exportFailed(const Trouble &trouble);

private:
    const JournalScreen &m_journal;
    PanelModel m_findingRows;
    PanelModel m_outputRows;
    PanelGrid *m_findings;
    PanelGrid *m_comparison;
    TextPane *m_exchange;
    QString m_exchangeText;
};
