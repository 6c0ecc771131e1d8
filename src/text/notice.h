#pragma once

#include <QString>
#include <QStringList>

/// A message of the catalogue by its key, with what fills the gaps "%1", "%2" … of its lines.
struct Notice
{
    QString key;
    QStringList arguments = {};

    friend bool operator==(const Notice &, const Notice &) = default;
};
