#include "findingslist.h"

#include "emptytext.h"
#include "findingdelegate.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>

#include <algorithm>

FindingsList::FindingsList(FindingsModel &findings, QWidget *parent) : QListView(parent), m_findings(findings)
{
    setModel(&findings);
    setItemDelegate(new FindingDelegate(findings, this));
    setSelectionMode(ExtendedSelection);
    setVerticalScrollMode(ScrollPerPixel);
    setUniformItemSizes(true);
    connect(this, &QListView::clicked, this, &FindingsList::choose);
}

void FindingsList::setEmptyText(const QString &text)
{
    m_emptyText = text;
    viewport()->update();
}

void FindingsList::choose(const QModelIndex &index)
{
    const Judgement &chosen = m_findings.finding(index.row());
    emit findingChosen(chosen.screen, chosen.what);
}

void FindingsList::paintEvent(QPaintEvent *event)
{
    QListView::paintEvent(event);
    if (m_findings.rowCount() == 0)
        paintEmptyText(*this, m_emptyText);
}

static QString copiedLines(QModelIndexList chosen)
{
    std::sort(chosen.begin(), chosen.end());
    QStringList lines;
    for (const QModelIndex &index : chosen)
        lines.append(index.data().toString());
    return lines.join(u'\n');
}

static bool isReturn(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

void FindingsList::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy))
        QGuiApplication::clipboard()->setText(copiedLines(selectedIndexes()));
    else if (isReturn(*event) && currentIndex().isValid())
        choose(currentIndex());
    else
        QListView::keyPressEvent(event);
}
