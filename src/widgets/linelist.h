#pragma once

#include "verdict.h"

#include <QListView>
#include <QStringListModel>

/// A list of result lines in the face of numbers. A line that was judged carries its verdict's shape and colour.
class LineList : public QListView
{
    Q_OBJECT

public:
    explicit LineList(QWidget *parent = nullptr);

    void setLines(const QStringList &lines);
    /// The verdicts of the lines, in their order; a list without judgements needs none.
    void setVerdicts(const QList<Verdict> &verdicts);
    Verdict verdict(int line) const { return m_verdicts.value(line, Verdict::None); }
    /// The model behind the list, for the painter.
    QStringListModel &lines() { return m_lines; }

    /// The selected lines, or all.
    QString copyText() const;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QStringListModel m_lines;
    QList<Verdict> m_verdicts;
};
