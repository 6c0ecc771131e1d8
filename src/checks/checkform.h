#pragma once

#include "checkscreen.h"
#include "readingform.h"

class QPlainTextEdit;

/// The form of a screen that sends one command at a time: buttons on the left, the result and the phone's words on the
/// right. F5 repeats the last test, Alt and a digit press a button.
class CheckForm : public ReadingForm
{
    Q_OBJECT

public:
    explicit CheckForm(std::unique_ptr<CheckScreen> screen, QWidget *parent = nullptr);

    void Traducao_Form() override;

protected:
    QStringView readHint() const override { return u"DICA_TESTE"; }

    /// A button of a test by its control's name; the first nine answer to a digit.
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
    int m_buttons = 0;
};
