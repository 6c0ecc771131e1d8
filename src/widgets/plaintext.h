#pragma once

#include <QMessageBox>
#include <QString>

// Texts that came from a phone, a store or a file are shown as they are written. These are the only ways to a tooltip
// and a box; labels are PlainLabels.

/// A caption for buttons and tabs, which would take a "&" for the mark of a shortcut.
inline QString plainText(QString caption)
{
    return caption.replace(u'&', QStringLiteral("&&"));
}

/// The text for a tooltip that shows it as it is, no wider than a person reads.
QString plainToolTip(const QString &text);

/// The same in the face of numbers: columns stay under one another.
QString tabularToolTip(const QString &text);

/// A box that shows its text as it is.
QMessageBox *plainBox(const QString &title, const QString &text, QMessageBox::StandardButtons buttons,
                      QWidget *parent = nullptr);
