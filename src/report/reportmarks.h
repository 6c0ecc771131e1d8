#pragma once

#include "findingverdict.h"
#include "language.h"

#include <QColor>
#include <QObject>
#include <QString>
#include <QTextObjectInterface>

class QTextCursor;

/// The word for a verdict in the user's language.
QString findingCaption(FindingVerdict verdict, Language language);
/// The colour of its word and shape on paper, and the pale one behind it.
QColor findingInk(FindingVerdict verdict);
QColor findingField(FindingVerdict verdict);

/// A deviation as it is drawn.
struct DrawnDeviation
{
    double deviation = 0; ///< per cent
    double tolerance = 0; ///< per cent; 0: there is none
    FindingVerdict verdict = FindingVerdict::NotJudged;
};

/// Draws the shapes of verdicts and the bars of deviations in the text of a document, by lines: they stay sharp.
class ReportMarks : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    explicit ReportMarks(QTextDocument &document);

    static void insertShape(QTextCursor &cursor, FindingVerdict verdict);
    static void insertBar(QTextCursor &cursor, const DrawnDeviation &drawn);

    QSizeF intrinsicSize(QTextDocument *document, int position, const QTextFormat &format) override;
    void drawObject(QPainter *painter, const QRectF &area, QTextDocument *document, int position,
                    const QTextFormat &format) override;
};
