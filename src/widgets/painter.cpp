#include "painter.h"

#include "fieldpaint.h"
#include "panelmodel.h"

QWidget *Painter::control(const QString &name)
{
    QPointer<QWidget> &found = m_controls[name];
    if (!found)
        found = m_form.findChild<QWidget *>(name);
    return found;
}

QStringList Painter::paint(const Panel &panel)
{
    QStringList unknown;
    for (auto field = panel.fields.begin(); field != panel.fields.end(); ++field) {
        if (QWidget *const named = control(field.key()))
            m_painted[field.key()] = paintField(*named, field.value(), m_painted.value(field.key()));
        else
            unknown.append(field.key());
    }
    if (m_rows)
        m_rows->show(panel.rows);
    if (m_lines && m_lines->stringList() != panel.lines)
        m_lines->setStringList(panel.lines);
    focusOn(panel.focus);
    return unknown;
}

void Painter::focusOn(const QString &name)
{
    if (name == m_focus)
        return;
    m_focus = name;
    if (QWidget *const named = name.isEmpty() ? nullptr : control(name))
        named->setFocus();
}
