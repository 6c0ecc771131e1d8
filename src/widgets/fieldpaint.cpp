#include "fieldpaint.h"

#include "gauge.h"
#include "linelist.h"
#include "plaintext.h"
#include "theme.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QSignalBlocker>

#include <algorithm>

using namespace Qt::StringLiterals;

/// Calls the action with the control as the first of these types that it is.
template <typename... Types, typename Action>
static void as(QWidget &control, Action action)
{
    const auto tried = [&](auto *typed) {
        if (typed)
            action(*typed);
        return typed != nullptr;
    };
    (tried(qobject_cast<Types *>(&control)) || ...);
}

static void setText(QWidget &control, const QString &text)
{
    as<QLabel, QAbstractButton, QLineEdit, Gauge>(control, [&](auto &typed) { typed.setText(text); });
    as<QGroupBox>(control, [&](QGroupBox &box) { box.setTitle(text); });
    as<QPlainTextEdit>(control, [&](QPlainTextEdit &box) { box.setPlainText(text); });
    as<QComboBox>(control, [&](QComboBox &combo) { combo.setCurrentText(text); });
}

static void setChecked(QWidget &control, bool checked)
{
    as<QAbstractButton, QGroupBox>(control, [&](auto &typed) { typed.setChecked(checked); });
}

/// A progress bar paints itself at once, and the window with it: it may wait for its turn as all else does.
static void setValue(QWidget &control, int value)
{
    const bool updates = control.updatesEnabled();
    control.setUpdatesEnabled(false);
    as<QProgressBar, QAbstractSlider, Gauge>(control, [&](auto &typed) { typed.setValue(value); });
    control.setUpdatesEnabled(updates);
}

/// As wide as its longest item, as far as that is reasonable.
static void boundWidth(QComboBox &combo, const QStringList &items)
{
    static constexpr qsizetype kMostLetters = 32;
    qsizetype longest = 0;
    for (const QString &item : items)
        longest = std::max(longest, item.size());
    combo.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo.setMinimumContentsLength(static_cast<int>(std::min(longest, kMostLetters)));
}

/// The chosen entry stays chosen where the new list still has it, and what was typed stays anyway.
static void setItems(QWidget &control, const QStringList &items)
{
    as<QComboBox>(control, [&](QComboBox &combo) {
        const QString chosen = combo.currentText();
        combo.clear();
        combo.addItems(items);
        boundWidth(combo, items);
        if (const int place = combo.findText(chosen); place >= 0)
            combo.setCurrentIndex(place);
        else if (combo.isEditable() && !chosen.isEmpty())
            combo.setEditText(chosen);
    });
    as<LineList>(control, [&](LineList &list) { list.setLines(items); });
}

static QPalette colouredPalette(const QColor &back, const QColor &fore)
{
    QPalette palette;
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button})
        palette.setColor(role, back);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, fore);
    return palette;
}

static void setColours(QWidget &control, const Field &field)
{
    const Theme &theme = currentTheme();
    const Colour behind = field.back.value_or(Colour::Neutral);
    const QColor back = field.back ? fieldColour(behind, theme) : control.palette().color(QPalette::Window);
    const QColor fore = inkColour(field.fore.value_or(Colour::Text), behind, theme);
    control.setAutoFillBackground(field.back.has_value());
    control.setPalette(colouredPalette(back, fore));
    // The style sheet of buttons and edits outweighs their palette.
    if (qobject_cast<QAbstractButton *>(&control) || qobject_cast<QLineEdit *>(&control))
        control.setStyleSheet(u"background: %1; color: %2;"_s.arg(back.name(), fore.name()));
}

/// Takes over a part that is set and new, and says whether it was.
template <typename Part>
static bool taken(std::optional<Part> &painted, const std::optional<Part> &wanted)
{
    if (!wanted || painted == wanted)
        return false;
    painted = wanted;
    return true;
}

Field paintField(QWidget &control, const Field &field, const Field &painted)
{
    // What a reading shows is no choice of the user's: nobody is told that it "changed".
    const QSignalBlocker quiet(control);
    Field now = painted;
    if (taken(now.items, field.items))
        setItems(control, *now.items);
    if (taken(now.text, field.text))
        setText(control, *now.text);
    if (taken(now.checked, field.checked))
        setChecked(control, *now.checked);
    if (taken(now.value, field.value))
        setValue(control, *now.value);
    if (taken(now.tip, field.tip))
        control.setToolTip(plainToolTip(*now.tip));
    if (taken(now.enabled, field.enabled))
        control.setEnabled(*now.enabled);
    if (taken(now.visible, field.visible))
        control.setVisible(*now.visible);
    const bool backTaken = taken(now.back, field.back);
    if (taken(now.fore, field.fore) || backTaken)
        setColours(control, now);
    return now;
}
