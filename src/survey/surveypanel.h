#pragma once

#include "finding.h"
#include "language.h"

/// The findings as the rows of a table: verdict in a word, what, reading, reference, deviation, source, screens, line.
QList<Row> findingRows(const QList<Finding> &findings, const QString &model, Language language);

/// The screens of a finding as the rail calls them.
QString screenNames(const Finding &finding, const QString &model, Language language);

/// "2 com falha, 1 não medido, …": how many there are of each verdict, the worst first.
QString findingCounts(const QList<Finding> &findings, Language language);

/// The deviation as a text; empty when there is none.
QString deviationOf(const Finding &finding);
