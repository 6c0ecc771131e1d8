#pragma once

#include "chipdrawing.h"
#include "chipscreen.h"
#include "readingform.h"

class LineList;
class QPushButton;
class ReportButtons;

/// What a chip's form is made of, besides what they all have.
struct ChipLook
{
    std::span<const ChipPin> pins;
    QLatin1StringView note;        ///< the control of the footnote
    QLatin1StringView status = {}; ///< controls in the block: a word,
    QLatin1StringView temp = {};   ///< the temperature of the chip,
    int mark = -1;                 ///< and the mark on all of it
};

/// A chip as a drawing with its readings at the pins, and where the screen has one, the log of the reply under it.
class ChipForm : public ReadingForm
{
    Q_OBJECT

public:
    /// `buttons` stand before the ones that all chips have.
    ChipForm(std::unique_ptr<ChipScreen> screen, const ChipLook &look, const QList<QPushButton *> &buttons,
             QWidget *parent);

    void Traducao_Form() override;
    void goTo(const QString &what) override;

protected:
    ChipScreen &chip() const { return m_chip; }
    void paintPanel() override;
    QString ownHint() const override { return m_chip.refusal(); }

private:
    QList<QWidget *> core(const ChipLook &look);
    QList<QWidget *> choices(const QList<QPushButton *> &own);
    QPushButton *button(const QString &name, void (ChipScreen::*clicked)());
    QWidget *scrolled(QWidget *drawing);
    QWidget *logFrame();

    ChipScreen &m_chip;
    ChipDrawing *m_drawing;
    QLabel *m_lbUC;
    QLabel *m_lbTemp = nullptr;
    QLabel *m_temp = nullptr;
    QLabel *m_lbReply = nullptr;
    QLabel *m_lbRecorded = nullptr;
    ReportButtons *m_report = nullptr;
    LineList *m_reply = nullptr;
    LineList *m_recorded = nullptr;
};
