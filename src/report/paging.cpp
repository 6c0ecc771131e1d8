#include "paging.h"

#include <QTextDocument>

void Paging::put(QTextDocument &part, double from, double height)
{
    m_slices.append({&part, from, height, m_current, m_top});
    m_top += height;
    m_isFresh = false;
}

void Paging::beginPage()
{
    ++m_current;
    m_top = 0;
    if (m_repeated)
        put(*m_repeated, 0, m_repeated->size().height());
    m_isFresh = true;
}

void Paging::place(QTextDocument &part)
{
    const double height = part.size().height();
    if (height > left() && !m_isFresh)
        beginPage();
    if (height > left())
        placeInSlices(part);
    else
        put(part, 0, height);
}

void Paging::placeInSlices(QTextDocument &part)
{
    const double height = left();
    part.setPageSize({m_page.width(), height});
    for (int slice = 0; slice < part.pageCount(); ++slice) {
        if (slice > 0)
            beginPage();
        put(part, slice * height, height);
    }
}

void Paging::placeOnEveryPage(QTextDocument &part)
{
    place(part);
    m_repeated = &part;
    m_isFresh = m_slices.last().top == 0;
}
