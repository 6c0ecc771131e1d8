#pragma once

#include "tableexport.h"

#include <QTableView>

class PanelModel;

/// The table of a panel's rows. It copies as text, exports as CSV, and says what to do while it is empty.
class PanelGrid : public QTableView
{
    Q_OBJECT

public:
    explicit PanelGrid(PanelModel &rows, QWidget *parent = nullptr);

    void setLanguage(Language language);
    /// What stands in the table while it has no rows.
    void setEmptyText(const QString &text);
    /// The name that the export suggests, without ending.
    void setExportName(const QString &name) { m_export->setName(name); }

    /// The selected cells as text; without a selection the whole table with its captions.
    QString copyText() const;
    QByteArray csv() const { return m_export->csv(); }
    /// Asks for a file and writes the table there.
    void exportCsv() { m_export->exportCsv(); }

signals:
    void exportFailed(const Trouble &trouble);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void narrowColumns();
    void fitColumns();

    PanelModel &m_rows;
    TableExport *m_export;
    QString m_emptyText;
};
