#pragma once

#include "theme.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

/// What the window finds again at its next start. Model and speed are kept in the store.
struct WindowState
{
    QByteArray geometry;
    QStringList screens; ///< the open ones in the order of their tabs
    QString front;       ///< the one that was in front
    QString port;
    ThemeChoice theme = ThemeChoice::Desktop;

    friend bool operator==(const WindowState &, const WindowState &) = default;
};

/// The state kept in a file; a missing or broken file is an empty state.
WindowState windowStateFrom(const QString &file);

/// Keeps the state; false when the file cannot be written.
bool keepWindowState(const WindowState &state, const QString &file);
