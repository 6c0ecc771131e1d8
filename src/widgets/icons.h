#pragma once

#include <QIcon>
#include <QStringView>

class QColor;
struct Theme;

/// A line icon of the set by its name ("buckldo"): in the ink of the theme that is shown when it is drawn, dimmed where
/// it is disabled. An unknown name gives an icon without a picture.
QIcon lineIcon(QStringView name, QColor Theme::*ink);
/// The same in the theme's text colour.
QIcon lineIcon(QStringView name);
/// The same for a button that fills with the accent while it is switched on.
QIcon switchIcon(QStringView name);

/// The names of the set, for the galleries and checks.
QStringList lineIconNames();

QIcon programIcon();
