#pragma once

#include "finding.h"

#include <QJsonArray>
#include <QJsonObject>

/// A finding as scripts read it; a deviation that is not known is null.
QJsonObject jsonOf(const Finding &finding);
QJsonArray jsonOf(const QList<Finding> &findings);
