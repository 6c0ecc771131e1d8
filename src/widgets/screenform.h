#pragma once

#include "painter.h"
#include "panelmodel.h"
#include "screen.h"

#include <QWidget>

#include <memory>

/// A form over one screen: it lays controls out, paints the screen's panel onto them and forwards clicks.
class ScreenForm : public QWidget
{
    Q_OBJECT

public:
    explicit ScreenForm(std::unique_ptr<Screen> screen, QWidget *parent = nullptr);

    Screen &screen() const { return *m_screen; }

    /// Sets every caption in the session's language.
    virtual void Traducao_Form() = 0;
    /// Fills the form when it is opened.
    virtual void CarregaDados();
    /// Shows a judged thing.
    virtual void goTo(const QString &what) { m_screen->goTo(what); }
    /// Sets captions and colours anew: the language or the theme is another.
    void paintAgain();

signals:
    /// The user asked for something that is to last: should the store refuse it, a line at the bottom is not enough.
    void keepingAsked();

protected:
    Painter &painter() { return m_painter; }
    Language language() const;
    QString text(QStringView key) const;
    /// A file that the user asked for was not written.
    void tellUnwritten(const Trouble &trouble);
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    /// Paints the screen's panel; a form that shows more than named controls adds to it.
    virtual void paintPanel();

private:
    std::unique_ptr<Screen> m_screen;
    Painter m_painter{*this};
};

/// Gives a control its name for scripts; its accessible name follows with its caption.
template <typename T>
T *named(T *control, const QString &name)
{
    control->setObjectName(name);
    return control;
}
