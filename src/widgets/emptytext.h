#pragma once

class QAbstractScrollArea;
class QString;

/// Writes into the middle of an empty view what to do next.
void paintEmptyText(QAbstractScrollArea &view, const QString &text);
