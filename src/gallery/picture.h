#pragma once

#include "language.h"
#include "theme.h"

#include <QList>
#include <QString>

/// One picture: a screen of the window on a simulated phone.
struct Picture
{
    QString screen; ///< the form's name
    QString phone;  ///< as the simulated phone is asked for
    Language language = Language::Portuguese;
    ThemeChoice theme = ThemeChoice::Light;
    QString name; ///< of the file, without its ending: language, theme, state of the phone, screen
};

/// Every screen that the window has, on a healthy phone and on a faulty one, in each language and theme.
QList<Picture> allPictures();
