#pragma once

#include <QUuid>

/// What tells a row apart from every other one, on whatever bench it was made.
inline QString newUuid()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}
