#include "screenform.h"

#include "catalogue.h"

ScreenForm::ScreenForm(std::unique_ptr<Screen> screen, QWidget *parent) : QWidget(parent), m_screen(std::move(screen))
{
    setObjectName(m_screen->name());
    connect(m_screen.get(), &Screen::panelChanged, this, &ScreenForm::paintPanel);
    connect(&m_screen->session(), &Session::languageChanged, this, &ScreenForm::paintAgain);
}

void ScreenForm::CarregaDados()
{
    Traducao_Form();
    m_screen->open();
    m_screen->readAtOpening();
}

Language ScreenForm::language() const
{
    return m_screen->session().language();
}

void ScreenForm::paintAgain()
{
    Traducao_Form();
    m_painter.forget();
    paintPanel();
}

QString ScreenForm::text(QStringView key) const
{
    return caption(key, language());
}

void ScreenForm::tellUnwritten(const Trouble &trouble)
{
    m_screen->session().boxes().message(trouble);
}

void ScreenForm::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_screen->setShown(true);
}

void ScreenForm::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_screen->setShown(false);
}

void ScreenForm::paintPanel()
{
    m_painter.paint(m_screen->panel());
}
