#pragma once

#include <QList>
#include <QSizeF>

class QTextDocument;

/// A stretch of a part and where it goes.
struct Slice
{
    QTextDocument *part;
    double from;
    double height;
    int page;
    double top;
};

/// Puts parts one under the other on pages. A part that fits on a page is never torn; a taller one begins on a page of
/// its own and breaks between its lines.
class Paging
{
public:
    explicit Paging(const QSizeF &page) : m_page(page) {}

    void place(QTextDocument &part);
    /// Places a part here, and again at the top of every page that is begun from now on.
    void placeOnEveryPage(QTextDocument &part);

    const QList<Slice> &slices() const { return m_slices; }
    int pages() const { return m_current + 1; }

private:
    double left() const { return m_page.height() - m_top; }
    void put(QTextDocument &part, double from, double height);
    void placeInSlices(QTextDocument &part);
    void beginPage();

    QSizeF m_page;
    QList<Slice> m_slices;
    QTextDocument *m_repeated = nullptr;
    double m_top = 0;
    bool m_isFresh = true; ///< nothing of its own is on the page yet
    int m_current = 0;
};
