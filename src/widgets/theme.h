#pragma once

#include "panel.h"

#include <QColor>
#include <QFont>

class QApplication;

/// How the user wants the window: as the desktop is, or always one of the two.
enum class ThemeChoice
{
    Desktop,
    Light,
    Dark
};

/// The colours of one theme by what they mean. Text on the fields of colour is dark in both themes.
struct Theme
{
    bool dark = false;
    QColor window;
    QColor surface;
    QColor stripe; ///< every other row
    QColor border;
    QColor text;
    QColor dim;
    QColor accent; ///< what can be pressed
    QColor onAccent;
    QColor faultField;
    QColor warnField;
    QColor passField;
    QColor onField;
    QColor faultInk; ///< red, orange and green as lines and words on the surface
    QColor warnInk;
    QColor passInk;
};

/// Distances in pixels: a grid of four, eight between controls, sixteen between groups.
namespace Spacing {
inline constexpr int unit = 4;
inline constexpr int control = 8;
inline constexpr int group = 16;
/// The least height of what a finger has to hit.
inline constexpr int target = 32;
} // namespace Spacing

/// The theme that the application's palette shows.
const Theme &currentTheme();

/// Gives the application its style, its font and the palette of the theme.
void applyTheme(ThemeChoice choice = ThemeChoice::Desktop);
/// Gives the application the style sheet of its palette. Widgets that are put together later pay for it at every move
/// to another parent: a start does it when the window is whole.
void applyStyleSheet(QApplication &application);

/// The fill of a field of this colour.
QColor fieldColour(Colour colour, const Theme &theme);
/// The text of this colour, on the surface or, with a coloured field behind it, dark.
QColor inkColour(Colour colour, Colour behind, const Theme &theme);
/// The fill and the line colour that go with a verdict.
QColor fieldColour(Verdict verdict, const Theme &theme);
QColor inkColour(Verdict verdict, const Theme &theme);

enum class TextSize
{
    Small,
    Normal,
    Large
};

QFont textFont(TextSize size = TextSize::Normal);
/// The face of numbers and of the console: every digit equally wide.
QFont tabularFont(TextSize size = TextSize::Normal);
