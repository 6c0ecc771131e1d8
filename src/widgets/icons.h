#pragma once

#include <QIcon>
#include <QStringView>

class QColor;

/// A line icon of the set by its name ("buckldo"), in one colour and dimmed where it is disabled. An unknown name
/// gives an icon without a picture.
QIcon lineIcon(QStringView name, const QColor &colour);
/// The same in the theme's text colour.
QIcon lineIcon(QStringView name);

/// The names of the set, for the galleries and checks.
QStringList lineIconNames();

QIcon programIcon();
