#include "screentabs.h"

#include "catalogue.h"
#include "formtable.h"
#include "icons.h"
#include "moduletable.h"
#include "plaintext.h"

#include <QMouseEvent>
#include <QShortcut>
#include <QTabBar>

using namespace Qt::StringLiterals;

ScreenTabs::ScreenTabs(Session &session, QWidget *parent) : QTabWidget(parent), m_session(session)
{
    setObjectName(u"Abas"_s);
    setTabsClosable(true);
    setMovable(true);
    setDocumentMode(true);
    tabBar()->setDrawBase(false);
    tabBar()->installEventFilter(this);
    connect(this, &QTabWidget::currentChanged, this, &ScreenTabs::changed);
    connect(this, &QTabWidget::tabCloseRequested, this, &ScreenTabs::close);
    connect(new QShortcut(Qt::CTRL | Qt::Key_W, this), &QShortcut::activated, this, [this] { close(currentIndex()); });
}

int ScreenTabs::indexOfName(const QString &name) const
{
    return static_cast<int>(names().indexOf(name));
}

QStringList ScreenTabs::names() const
{
    QStringList open;
    for (int i = 0; i < count(); ++i)
        open.append(widget(i)->objectName());
    return open;
}

QString ScreenTabs::frontName() const
{
    return currentWidget() ? currentWidget()->objectName() : QString();
}

ScreenForm *ScreenTabs::form(const QString &name) const
{
    return qobject_cast<ScreenForm *>(widget(indexOfName(name)));
}

void ScreenTabs::open(const QString &name)
{
    if (indexOfName(name) < 0)
        add(name);
    setCurrentIndex(indexOfName(name));
    emit changed();
}

void ScreenTabs::add(const QString &name)
{
    ScreenForm *form = makeForm(name, m_session);
    if (!form)
        return;
    addTab(form, QString());
    Traducao_Form();
    form->CarregaDados();
    emit formOpened(form);
}

void ScreenTabs::goTo(const QString &screen, const QString &what)
{
    open(screen);
    if (ScreenForm *opened = what.isEmpty() ? nullptr : form(screen))
        opened->goTo(what);
}

void ScreenTabs::paintAgain()
{
    for (const QString &name : names())
        if (ScreenForm *opened = form(name))
            opened->paintAgain();
}

void ScreenTabs::close(int index)
{
    QWidget *page = widget(index);
    if (!page)
        return;
    removeTab(index);
    delete page; // at once: its screen must not take a late reply
    emit changed();
}

void ScreenTabs::Traducao_Form()
{
    for (int i = 0; i < count(); ++i) {
        const Module *module = moduleNamed(widget(i)->objectName());
        setTabText(i, plainText(caption(captionKey(*module, m_session.model()), m_session.language())));
        setTabToolTip(i, plainToolTip(caption(u"Fechar aba", m_session.language()) + "  (Ctrl+W)"_L1));
        setTabIcon(i, lineIcon(QString(module->icon)));
    }
}

bool ScreenTabs::eventFilter(QObject *watched, QEvent *event)
{
    const auto *click = event->type() == QEvent::MouseButtonRelease ? static_cast<QMouseEvent *>(event) : nullptr;
    if (watched == tabBar() && click && click->button() == Qt::MiddleButton)
        close(tabBar()->tabAt(click->pos()));
    return QTabWidget::eventFilter(watched, event);
}
