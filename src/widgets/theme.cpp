#include "theme.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPalette>
#include <QStyleFactory>

#include <utility>

using namespace Qt::StringLiterals;

static Theme lightTheme()
{
    return {.dark = false,
            .window = 0xeef1f4,
            .surface = 0xffffff,
            .stripe = 0xf6f8fa,
            .border = 0xc3cad2,
            .text = 0x16202a,
            .dim = 0x5a6773,
            .accent = 0x1459a8,
            .onAccent = 0xffffff,
            .faultField = 0xffc2a1,
            .warnField = 0xffe59a,
            .passField = 0xc0f0c4,
            .onField = 0x1a1410,
            .faultInk = 0xb3261e,
            .warnInk = 0x9a5b00,
            .passInk = 0x1e7a34};
}

static Theme darkTheme()
{
    return {.dark = true,
            .window = 0x1b2026,
            .surface = 0x262d35,
            .stripe = 0x2b333c,
            .border = 0x505c69,
            .text = 0xe6ebf0,
            .dim = 0x9aa7b4,
            .accent = 0x7db4f5,
            .onAccent = 0x0c1a2a,
            .faultField = 0xf5a27c,
            .warnField = 0xe8c766,
            .passField = 0x8fcf9a,
            .onField = 0x14100c,
            .faultInk = 0xff8f70,
            .warnInk = 0xf0c050,
            .passInk = 0x7fd08c};
}

static const Theme &theme(bool dark)
{
    static const Theme kThemes[] = {lightTheme(), darkTheme()};
    return kThemes[dark ? 1 : 0];
}

static bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

const Theme &currentTheme()
{
    return theme(isDark(QGuiApplication::palette()));
}

static QPalette paletteOf(const Theme &theme)
{
    QPalette palette(theme.window, theme.window);
    const std::pair<QPalette::ColorRole, QColor> roles[] = {
        {QPalette::WindowText, theme.text},      {QPalette::Base, theme.surface},
        {QPalette::AlternateBase, theme.stripe}, {QPalette::Text, theme.text},
        {QPalette::ButtonText, theme.text},      {QPalette::BrightText, theme.faultInk},
        {QPalette::Highlight, theme.accent},     {QPalette::HighlightedText, theme.onAccent},
        {QPalette::Link, theme.accent},          {QPalette::LinkVisited, theme.accent},
        {QPalette::ToolTipBase, theme.surface},  {QPalette::ToolTipText, theme.text},
        {QPalette::PlaceholderText, theme.dim},  {QPalette::Mid, theme.border}};
    for (const auto &[role, colour] : roles)
        palette.setColor(role, colour);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, theme.dim);
    return palette;
}

/// The accent, so faint that the percentage is read on it as well as beside it.
static QColor progressColour(const Theme &theme)
{
    static constexpr double kShare = 0.35;
    const auto mixed = [](int accent, int surface) { return qRound(kShare * accent + (1 - kShare) * surface); };
    return {mixed(theme.accent.red(), theme.surface.red()), mixed(theme.accent.green(), theme.surface.green()),
            mixed(theme.accent.blue(), theme.surface.blue())};
}

static QString styleSheetOf(const Theme &theme)
{
    static constexpr auto kSheet = R"(
QPushButton { min-height: 22px; padding: 4px 12px; border: 1px solid @border; border-radius: 4px;
    background: @surface; color: @accent; }
QPushButton:hover { border-color: @accent; }
QPushButton:focus { border: 2px solid @accent; padding: 3px 11px; }
QPushButton[primary="true"]:focus, QPushButton:checked:focus { border-color: @text; }
QPushButton:pressed, QPushButton:checked { background: @accent; color: @onAccent; }
QPushButton[primary="true"] { background: @accent; color: @onAccent; font-weight: bold; }
QPushButton:disabled, QPushButton[primary="true"]:disabled { background: @window; color: @dim;
    border-color: @border; }
QToolButton { min-width: 22px; min-height: 22px; padding: 4px; border: 1px solid @border; border-radius: 4px;
    background: @surface; color: @text; }
QToolButton:hover, QToolButton:focus { border-color: @accent; }
QToolButton:pressed, QToolButton:checked { background: @accent; color: @onAccent; }
QToolButton:disabled { background: @window; color: @dim; }
QToolButton[flat="true"][rail="true"] { min-height: 0; padding: 0; }
QToolButton[flat="true"] { background: transparent; border-color: transparent; }
QToolButton[flat="true"]:checked, QToolButton[flat="true"]:pressed { background: @accent; }
QToolButton[flat="true"]:hover, QToolButton[flat="true"]:focus { border-color: @accent; }
QToolButton::menu-indicator { image: none; }
QComboBox, QSpinBox { min-height: 28px; }
QLineEdit { min-height: 22px; padding: 2px 6px; border: 1px solid @border; border-radius: 4px; }
QLineEdit:focus { border-color: @accent; }
QComboBox QLineEdit { border: none; padding: 0; }
QTableView, QListView, QTreeView { border: 1px solid @border; }
QRadioButton, QCheckBox { min-height: 28px; spacing: 8px; }
QRadioButton::indicator, QCheckBox::indicator { width: 14px; height: 14px; border: 1px solid @dim;
    background: @surface; }
QRadioButton::indicator { border-radius: 8px; }
QCheckBox::indicator { border-radius: 3px; }
QRadioButton::indicator:checked { border-color: @accent; background: qradialgradient(cx: 0.5, cy: 0.5, radius: 0.5,
    fx: 0.5, fy: 0.5, stop: 0 @accent, stop: 0.5 @accent, stop: 0.6 @surface, stop: 1 @surface); }
QCheckBox::indicator:checked { border-color: @accent; background: @accent; image: url(:/icons/style/@tick.svg); }
QHeaderView { font-size: 9.5pt; background: @window; }
QHeaderView::section { padding: 4px 6px; border: none; border-bottom: 1px solid @border;
    background: @window; color: @dim; }
QTabBar::tab { min-height: 22px; padding: 4px 8px 4px 12px; border: none; border-bottom: 3px solid transparent;
    background: transparent; color: @dim; }
QTabBar::tab:selected { border-bottom-color: @accent; color: @text; }
QTabBar::tab:hover { color: @text; }
QTabBar::close-button { image: url(:/icons/style/@close.svg); padding: 2px; border-radius: 3px; }
QTabBar::close-button:hover { background: @border; }
QTabWidget::pane { border: none; }
QProgressBar { min-height: 14px; max-height: 14px; border: 1px solid @border; border-radius: 4px;
    background: @surface; text-align: center; }
QProgressBar::chunk { background: @progress; border-radius: 3px; }
QSlider { min-height: 24px; }
QSlider::groove:horizontal { height: 4px; border-radius: 2px; background: @border; }
QSlider::handle:horizontal { width: 16px; margin: -6px 0; border-radius: 8px; background: @accent; }
QSlider::handle:horizontal:focus { border: 2px solid @text; }
QSlider::handle:horizontal:disabled { background: @border; }
QStatusBar { border-top: 1px solid @border; }
QStatusBar::item { border: none; }
QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }
QMenu { padding: 4px; border: 1px solid @border; background: @surface; }
QMenu::item { min-height: 24px; padding: 2px 24px 2px 8px; border-radius: 3px; }
QMenu::item:selected { background: @accent; color: @onAccent; }
QMenu::separator { height: 1px; margin: 4px; background: @border; }
QMenu::icon { padding-left: 4px; }
QToolTip { padding: 4px; border: 1px solid @border; background: @surface; color: @text; }
)"_L1;
    const std::pair<QLatin1StringView, QColor> names[] = {
        {"@border"_L1, theme.border}, {"@surface"_L1, theme.surface},         {"@accent"_L1, theme.accent},
        {"@window"_L1, theme.window}, {"@onAccent"_L1, theme.onAccent},       {"@text"_L1, theme.text},
        {"@dim"_L1, theme.dim},       {"@progress"_L1, progressColour(theme)}};
    QString sheet = kSheet;
    for (const auto &[name, colour] : names)
        sheet.replace(name, colour.name());
    sheet.replace("@close"_L1, theme.dark ? "close-dark"_L1 : "close-light"_L1);
    return sheet.replace("@tick"_L1, theme.dark ? "tick-dark"_L1 : "tick-light"_L1);
}

void applyTheme(ThemeChoice choice)
{
    static const bool desktopDark = currentTheme().dark; // asked before our own palette covers it
    const bool dark = choice == ThemeChoice::Dark || (choice == ThemeChoice::Desktop && desktopDark);
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    QApplication::setPalette(paletteOf(theme(dark)));
    QApplication::setFont(textFont());
}

void applyStyleSheet(QApplication &application)
{
    application.setStyleSheet(styleSheetOf(currentTheme()));
}

/// What a colour is on the screen: as a field, and as text on the surface.
struct Tint
{
    QColor Theme::*field;
    QColor Theme::*ink;
    bool coloured = false;
};

static const Tint &tintOf(Colour colour)
{
    // The face is the colour of the window itself: text in it is not there.
    static constexpr Tint kTints[] = {{&Theme::surface, &Theme::text},
                                      {&Theme::faultField, &Theme::faultInk, true},
                                      {&Theme::passField, &Theme::passInk, true},
                                      {&Theme::warnField, &Theme::warnInk, true},
                                      {&Theme::passField, &Theme::passInk, true},
                                      {&Theme::passField, &Theme::passInk, true},
                                      {&Theme::surface, &Theme::text},
                                      {&Theme::window, &Theme::window},
                                      {&Theme::passField, &Theme::passInk, true},
                                      {&Theme::dim, &Theme::dim, true}};
    return kTints[static_cast<std::size_t>(colour)];
}

QColor fieldColour(Colour colour, const Theme &theme)
{
    return theme.*tintOf(colour).field;
}

QColor inkColour(Colour colour, Colour behind, const Theme &theme)
{
    return tintOf(behind).coloured ? theme.onField : theme.*tintOf(colour).ink;
}

QColor fieldColour(Verdict verdict, const Theme &theme)
{
    const QColor *const colours[] = {&theme.surface, &theme.passField, &theme.warnField, &theme.faultField};
    return *colours[static_cast<std::size_t>(verdict)];
}

QColor inkColour(Verdict verdict, const Theme &theme)
{
    const QColor *const colours[] = {&theme.dim, &theme.passInk, &theme.warnInk, &theme.faultInk};
    return *colours[static_cast<std::size_t>(verdict)];
}

static QFont sized(QFont font, TextSize size)
{
    static constexpr double kPoints[] = {9.5, 11, 20};
    font.setPointSizeF(kPoints[static_cast<std::size_t>(size)]);
    return font;
}

QFont textFont(TextSize size)
{
    return sized(QFontDatabase::systemFont(QFontDatabase::GeneralFont), size);
}

QFont tabularFont(TextSize size)
{
    QFont font = sized(QFontDatabase::systemFont(QFontDatabase::FixedFont), size);
    font.setStyleHint(QFont::Monospace);
    return font;
}
