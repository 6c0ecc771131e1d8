#pragma once

#include "differencemodel.h"

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

    /// The selected rows as text, without a selection all that differ.
    QString copyText() const;

public slots:
    void next();
    void previous();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void goTo(std::optional<qsizetype> row);

    DifferenceModel m_model;
    QString m_emptyText;
};
