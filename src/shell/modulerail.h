#pragma once

#include "language.h"
#include "moduletable.h"

#include <QHash>
#include <QScrollArea>

class QLabel;
class RailButton;

/// The left side of the window: one button per screen, in bench order.
class ModuleRail : public QScrollArea
{
    Q_OBJECT

public:
    explicit ModuleRail(QWidget *parent = nullptr);

    void Traducao_Form(Language language, const QString &model);
    /// Marks the screen that is in front; an empty name marks none.
    void mark(const QString &screen);

signals:
    void screenPressed(const QString &screen);

private:
    RailButton *addButton(const Module &module);
    void addKeyHint(QLabel &heading);

    QHash<QString, RailButton *> m_buttons;
    QHash<int, QLabel *> m_headings;
    QLabel *m_keyHint;
};
