#pragma once

#include "differencemodel.h"
#include "tableexport.h"

#include <QTableView>

/// Two replies side by side: what differs stands out, and the keys go from one difference to the next.
class DifferenceView : public QTableView
{
    Q_OBJECT

public:
    explicit DifferenceView(QWidget *parent = nullptr);

    void showDifference(const ReplyDifference &difference);
    void setLanguage(Language language);
    void setEmptyText(const QString &text);
    /// The name that the export suggests, without ending.
    void setName(const QString &name) { m_export.setName(name); }

    /// The selected rows as text, without a selection all that differ.
    QString copyText() const;

public slots:
    void next();
    void previous();

signals:
    void exportFailed(const Trouble &trouble);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void goTo(std::optional<qsizetype> row);

    DifferenceModel m_model;
    TableExport m_export{*this, m_model, [this] { return copyText(); }};
    QString m_emptyText;
};
