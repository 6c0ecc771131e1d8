#pragma once

#include "railscreen.h"
#include "readingform.h"

class QComboBox;

/// What the forms over rails share: the reading of the self-test and the decimals.
class RailForm : public ReadingForm
{
    Q_OBJECT

public:
    explicit RailForm(std::unique_ptr<RailScreen> screen, QWidget *parent = nullptr);

    void Traducao_Form() override;

protected:
    RailScreen &rails() const { return m_rails; }
    /// The lists of decimal places with their label.
    QWidget *decimals();
    void setDecimalsCaption(const QString &text);
    /// The buttons of the kinds, side by side.
    QWidget *kinds(const QList<QPushButton *> &buttons, const QString &frame);
    QString ownHint() const override { return m_rails.faultsElsewhere(); }

private:
    RailScreen &m_rails;
    QLabel *m_lbInfoDecimais;
    QComboBox *m_comboDecimais;
    QComboBox *m_comboDecimaisAmp;
};
