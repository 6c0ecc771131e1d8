#pragma once

#include "screenform.h"
#include "session.h"

#include <QTabWidget>

/// The open screens as tabs.
class ScreenTabs : public QTabWidget
{
    Q_OBJECT

public:
    explicit ScreenTabs(Session &session, QWidget *parent = nullptr);

    /// Opens a screen, or raises it when it is open already. A name that no screen has does nothing.
    void open(const QString &name);
    /// Opens a screen and shows a judged thing on it.
    void goTo(const QString &screen, const QString &what);
    /// The form of an open screen; none for a screen that this version does not have yet.
    ScreenForm *form(const QString &name) const;
    ScreenForm *frontForm() const { return qobject_cast<ScreenForm *>(currentWidget()); }
    /// Names of the open screens in the order of their tabs.
    QStringList names() const;
    QString frontName() const;
    void close(int index);
    void Traducao_Form();
    /// The theme is another.
    void paintAgain();

signals:
    void formOpened(ScreenForm *form);
    /// Another screen is in front, or none any more.
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    int indexOfName(const QString &name) const;
    void add(const QString &name);

    Session &m_session;
};
