#pragma once

#include <QObject>

/// Keeps combo boxes, spin boxes and sliders of the whole program from being changed by who does not mean them: a
/// wheel that passes over them, or keys after the focus fell to them because its holder was disabled or hidden.
class ChooserGuard : public QObject
{
public:
    explicit ChooserGuard(QObject *parent);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
