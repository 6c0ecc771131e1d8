#include "chooserguard.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QSlider>

static QWidget *chooser(QObject *object)
{
    const bool chooses = qobject_cast<QComboBox *>(object) || qobject_cast<QAbstractSpinBox *>(object) ||
                         qobject_cast<QSlider *>(object);
    return chooses ? static_cast<QWidget *>(object) : nullptr;
}

static void dropFallenFocus(QWidget *holder, QWidget *heir)
{
    const bool fell = holder && (!holder->isEnabled() || !holder->isVisible());
    if (fell && chooser(heir) && holder->window() == heir->window())
        heir->clearFocus();
}

ChooserGuard::ChooserGuard(QObject *parent) : QObject(parent)
{
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, &dropFallenFocus);
}

bool ChooserGuard::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Polish && event->type() != QEvent::Wheel)
        return false;
    QWidget *const found = chooser(watched);
    if (!found)
        return false;
    if (event->type() == QEvent::Polish) {
        if (found->focusPolicy() == Qt::WheelFocus)
            found->setFocusPolicy(Qt::StrongFocus); // the wheel would give it the focus first
        return false;
    }
    if (found->hasFocus())
        return false;
    event->ignore(); // what stands around it may scroll
    return true;
}
