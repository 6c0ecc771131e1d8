#pragma once

#include "documentmaker.h"
#include "journalscreen.h"
#include "panelmodel.h"
#include "screenform.h"

class JournalPages;
class PanelGrid;
class QLabel;
class QLineEdit;
class QPushButton;
class VerdictBadge;

/// The form of the journal: the surveys above, below them what the chosen ones say.
class Journal : public ScreenForm
{
    Q_OBJECT

public:
    explicit Journal(Session &session, QWidget *parent = nullptr);

    void Traducao_Form() override;

protected:
    void paintPanel() override;

private:
    QWidget *list();
    QWidget *details();
    QWidget *head();
    QWidget *buttons();
    void connectButtons();
    void connectEdits();
    QStringList chosen() const;
    void paintChoice();
    void paintNote();
    void btJSON_Click();
    /// Writes the report anew, where documents are kept, and opens it.
    void btImprimir_Click();

    JournalScreen &m_journal;
    DocumentMaker m_documents;
    PanelModel m_surveyRows;
    PanelGrid *m_list;
    JournalPages *m_pages;
    VerdictBadge *m_badge;
    QLineEdit *m_search;
    QLabel *m_lbNota;
    QLineEdit *m_note;
    QPushButton *m_btComparar;
    QPushButton *m_btTroca;
    QPushButton *m_btImprimir;
    QPushButton *m_btCsv;
    QPushButton *m_btJson;
    QPushButton *m_btExcluir;
};
