#pragma once

#include <QString>

/// A caption for buttons and tabs, which would take a "&" for the mark of a shortcut.
inline QString plainText(QString caption)
{
    return caption.replace(u'&', QStringLiteral("&&"));
}
