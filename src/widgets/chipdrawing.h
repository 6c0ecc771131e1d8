#pragma once

#include "language.h"
#include "panel.h"
#include "pinpaint.h"

#include <QWidget>

#include <span>

class DeviationMeter;
class MarkLabel;
class QBoxLayout;
class QLabel;
class QVBoxLayout;
class ValueField;

/// A pin of a chip and the controls that are laid at it. Their names are those of the panel's fields.
struct ChipPin
{
    Flow flow;
    QStringView pin = {};           ///< drawn in the chip
    QLatin1StringView net = {};     ///< the caption, and how the readings call it
    QLatin1StringView caption = {}; ///< the control that holds the caption, where it follows the model
    QLatin1StringView volts = {};
    QLatin1StringView amps = {};
    QLatin1StringView deviation = {};
    QLatin1StringView warning = {}; ///< stands for the mark of a fault; the drawing adds deviation and other marks
    int mark = -1;
    QLatin1StringView frame = {}; ///< of the readings
};

/// A chip as a block with its inputs at the left and its outputs at the right. The readings at the pins are controls of
/// their own; what is drawn behind them only tells where they belong.
class ChipDrawing : public QWidget
{
    Q_OBJECT

public:
    /// `core` stands in the block from top to bottom.
    ChipDrawing(std::span<const ChipPin> pins, const QList<QWidget *> &core, QWidget *parent = nullptr);

    /// Draws what the panel's facts say of the pins and names the readings for those who do not see them.
    void showPanel(const Panel &panel, Language language);
    /// Frames the pin of a judged thing.
    void select(const QString &what);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    /// A pin as it is laid out.
    struct Laid
    {
        const ChipPin *pin;
        QWidget *head;
        QLabel *caption;
        QWidget *row;
        DeviationMeter *meter = nullptr;
        ValueField *deviation = nullptr; ///< of a pin that has a warning, but no controls to tell the rest
        MarkLabel *passed = nullptr;
        MarkLabel *unmeasured = nullptr;
        QString what = {};
        Verdict verdict = Verdict::None;
        bool isSeen = true; ///< the model has it
    };

    void fillBlock(const QList<QWidget *> &core);
    void add(const ChipPin &pin, QVBoxLayout &column);
    QWidget *headOf(Laid &laid);
    QWidget *rowOf(Laid &laid);
    void showFact(Laid &laid, const Panel &panel, Language language);
    static void tell(const Laid &laid, const Row &fact, Language language);
    void nameReadings(const Laid &laid);
    QRect areaOf(const Laid &laid) const;
    PinLine lineOf(const Laid &laid) const;

    QList<Laid> m_laid;
    QWidget *m_block;
    int m_pinRoom;
    QString m_selected;
};
