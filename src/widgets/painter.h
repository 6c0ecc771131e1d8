#pragma once

#include "panel.h"

#include <QHash>
#include <QPointer>
#include <QStringListModel>
#include <QWidget>

class PanelModel;

/// Paints panels onto the named controls of a form. Only what differs from the last painting is touched, so typing,
/// scroll and selection survive.
class Painter
{
public:
    explicit Painter(QWidget &form) : m_form(form) {}

    /// Where the rows and the lines of the panel go; a form without a grid or a list sets none.
    void setRows(PanelModel *rows) { m_rows = rows; }
    void setLines(QStringListModel *lines) { m_lines = lines; }

    /// Paints the panel. Returns the names of its fields that the form has no control for.
    QStringList paint(const Panel &panel);
    /// The colours mean other values now: the next painting touches everything again.
    void forget() { m_painted.clear(); }

private:
    QWidget *control(const QString &name);
    void focusOn(const QString &name);

    QWidget &m_form;
    QPointer<PanelModel> m_rows;
    QPointer<QStringListModel> m_lines;
    QHash<QString, QPointer<QWidget>> m_controls;
    QMap<QString, Field> m_painted;
    QString m_focus;
};
