#pragma once

#include <QObject>
#include <QTextObjectInterface>

/// Draws the bus maps of a document, each in the place of its mark "{{map MODEL}}".
class BusDrawing : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    /// Puts the maps into the document; the drawing has to live as long as it is printed.
    void addTo(QTextDocument &document);

    QSizeF intrinsicSize(QTextDocument *document, int position, const QTextFormat &format) override;
    void drawObject(QPainter *painter, const QRectF &rect, QTextDocument *document, int position,
                    const QTextFormat &format) override;
};
