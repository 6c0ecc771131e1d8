#pragma once

#include "checkscreen.h"
#include "readingform.h"

#include <QPointer>

class QPlainTextEdit;

/// The form of a screen that sends one command at a time: buttons on the left, the result and the phone's words on the
/// right. F5 repeats the last test, Alt and a key of the upper rows press a button.
class CheckForm : public ReadingForm
{
    Q_OBJECT

public:
    explicit CheckForm(std::unique_ptr<CheckScreen> screen, QWidget *parent = nullptr);

    void Traducao_Form() override;

protected:
    QStringView readHint() const override { return u"DICA_TESTE"; }
    /// A button that cannot be pressed while its test runs has the focus again afterwards.
    void paintPanel() override;

    /// A button of a test by its control's name; its tooltip tells its key.
    QPushButton *testButton(const QString &name);
    /// Buttons under one another.
    static QWidget *column(const QList<QWidget *> &controls);
    /// Status, marks and note of the result, one under the other.
    QWidget *result(const QList<QWidget *> &above = {});
    /// What the phone says, as it comes in.
    QWidget *replyBox();
    /// The recording of the command, and the button that shows and hides it.
    QWidget *comparator();
    QPushButton *comparatorButton();
    static QLabel *largeLabel(const QString &name);
    CheckScreen &check() const { return m_check; }

private:
    CheckScreen &m_check;
    QPlainTextEdit *m_txtDados = nullptr;
    QLabel *m_lbDados = nullptr;
    QPlainTextEdit *m_txtComparador = nullptr;
    QLabel *m_ldDispComparador = nullptr;
    QPushButton *m_btComparador = nullptr;
    QPointer<QWidget> m_pressed; ///< lost the focus when it was disabled
    QPointer<QWidget> m_standIn; ///< what has it meanwhile
    qsizetype m_buttons = 0;
};
