#pragma once

#include "screenform.h"

class QHBoxLayout;
class QLabel;
class QProgressBar;
class QPushButton;
class QVBoxLayout;
class VerdictBadge;

/// The form of a screen that reads the phone: verdict, title and buttons at the top, the choices, what to do next, the
/// body, and at the bottom a note and the progress.
class ReadingForm : public ScreenForm
{
    Q_OBJECT

public:
    using ScreenForm::ScreenForm;

    void Traducao_Form() override;

protected:
    struct Parts
    {
        QString note; ///< the name of the label at the bottom
        QList<QWidget *> buttons;
        QList<QWidget *> choices; ///< from left to right; a null pointer takes the free room
        QWidget *body = nullptr;
        QWidget *report = nullptr; ///< at the right of the note
    };

    void layOut(const Parts &parts);
    /// The button that starts the reading, also by F5. Its caption comes with the panel.
    QPushButton *readButton(const QString &name);
    void paintPanel() override;
    /// What to do for a reading, as a key.
    virtual QStringView readHint() const { return u"DICA_LER"; }
    /// What the form has to tell besides what is to be done next; before a reading, instead of it.
    virtual QString ownHint() const { return {}; }

private:
    QHBoxLayout *headRow(const QList<QWidget *> &buttons);
    QHBoxLayout *noteRow(const Parts &parts);
    QStringView hintKey() const;
    void paintHint();

    QLabel *m_title;
    VerdictBadge *m_badge;
    QLabel *m_hint;
    QPushButton *m_read = nullptr;
    QLabel *m_lbBarra;
    QProgressBar *m_barra;
};

/// A row of controls without margins of its own.
QHBoxLayout *controlRow(QWidget *parent = nullptr);
/// A column of controls without margins of its own.
QVBoxLayout *controlColumn(QWidget *parent);
/// The column that fills a screen.
QVBoxLayout *pageColumn(QWidget *screen);
