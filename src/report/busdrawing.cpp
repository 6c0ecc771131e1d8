#include "busdrawing.h"

#include "busmap.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QRegularExpression>
#include <QTextCursor>
#include <QTextDocument>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMap = QTextFormat::UserObject + 1;
constexpr int kModel = QTextFormat::UserProperty + 1;

// In points.
constexpr double kWidth = 420;
constexpr double kProcessorWidth = 52;
constexpr double kTitleHeight = 26;
constexpr double kLabelHeight = 16;
constexpr double kGap = 8;
constexpr double kBoxHeight = 32;
constexpr int kBoxesInARow = 3;
constexpr double kBoxWidth = (kWidth - kProcessorWidth - kBoxesInARow * kGap) / kBoxesInARow;
constexpr double kLeft = kProcessorWidth + kGap;
constexpr double kSmall = 7.5;
/// A font's size in pixels is a whole number: texts are drawn that much larger and scaled back.
constexpr double kFine = 100;

constexpr QStringView kUnknown = u"nenhum dispositivo conhecido · no device known · ningún dispositivo conocido";

double heightOf(const MappedBus &bus)
{
    const qsizetype rows = (bus.devices.size() + kBoxesInARow - 1) / kBoxesInARow;
    return kLabelHeight + (rows == 0 ? kLabelHeight : static_cast<double>(rows) * (kBoxHeight + kGap));
}

double heightOf(const QList<MappedBus> &buses)
{
    double height = kTitleHeight;
    for (const MappedBus &bus : buses)
        height += heightOf(bus);
    return height;
}

double dotsPerPoint(const QPaintDevice *device)
{
    constexpr double kPointsPerInch = 72;
    return device ? device->logicalDpiY() / kPointsPerInch : 1;
}

QPen penOf(Confidence confidence)
{
    static constexpr std::array kStyles = {Qt::SolidLine, Qt::DashLine, Qt::DotLine};
    static constexpr std::array kWidths = {1.2, 0.8, 0.8};
    const auto of = static_cast<std::size_t>(confidence);
    return {Qt::black, kWidths.at(of), kStyles.at(of)};
}

/// The painter's unit is a point, on paper as on a screen; a font in points would follow the device's resolution.
void setSize(QPainter &painter, double points, QFont::Weight weight = QFont::Normal)
{
    QFont font = painter.font();
    font.setPixelSize(qRound(points * kFine));
    font.setWeight(weight);
    painter.setFont(font);
}

void write(QPainter &painter, const QRectF &rect, Qt::Alignment alignment, const QString &text)
{
    painter.save();
    painter.scale(1 / kFine, 1 / kFine);
    painter.drawText(QRectF(rect.topLeft() * kFine, rect.size() * kFine),
                     static_cast<int>(alignment) | Qt::TextWordWrap, text);
    painter.restore();
}

void drawDevice(QPainter &painter, const QRectF &box, const MappedDevice &device)
{
    painter.setPen(penOf(device.confidence));
    painter.drawRect(box);
    painter.setPen(Qt::black);
    const QRectF inside = box.adjusted(4, 3, -4, -3);
    setSize(painter, kSmall, QFont::Bold);
    write(painter, inside, Qt::AlignTop | Qt::AlignLeft, device.address);
    setSize(painter, kSmall);
    write(painter, inside, Qt::AlignBottom | Qt::AlignLeft, device.name);
}

void drawBus(QPainter &painter, double top, const MappedBus &bus)
{
    const double line = top + kLabelHeight;
    painter.setPen(QPen(Qt::black, 1.6));
    painter.drawLine(QPointF(kProcessorWidth, line), QPointF(kWidth, line));
    setSize(painter, 9, QFont::Bold);
    write(painter, {kLeft, top, kWidth, kLabelHeight}, Qt::AlignVCenter | Qt::AlignLeft, u"I2C %1"_s.arg(bus.bus));
    setSize(painter, kSmall);
    if (!bus.likely.isEmpty())
        write(painter, {kLeft + 40, top, kWidth - kLeft - 40, kLabelHeight}, Qt::AlignVCenter | Qt::AlignRight,
              u"⚠ "_s + QString(bus.likely).replace("\r\n"_L1, " "_L1));
    if (bus.devices.isEmpty())
        write(painter, {kLeft, line, kWidth - kLeft, kLabelHeight}, Qt::AlignVCenter | Qt::AlignLeft,
              kUnknown.toString());
    for (qsizetype i = 0; i < bus.devices.size(); ++i) {
        const double x = kLeft + static_cast<double>(i % kBoxesInARow) * (kBoxWidth + kGap);
        const qsizetype boxRow = i / kBoxesInARow;
        const double y = line + kGap / 2 + static_cast<double>(boxRow) * (kBoxHeight + kGap);
        drawDevice(painter, {x, y, kBoxWidth, kBoxHeight}, bus.devices.at(i));
    }
}

/// With the name of the model above it, so that a page break does not part them.
void drawMap(QPainter &painter, const QString &model)
{
    const QList<MappedBus> buses = mappedBuses(model);
    painter.setPen(Qt::black);
    setSize(painter, 13, QFont::Bold);
    write(painter, {0, 0, kWidth, kTitleHeight - kGap / 2}, Qt::AlignVCenter | Qt::AlignLeft, model);
    const QRectF processor(0, kTitleHeight, kProcessorWidth, heightOf(buses) - kTitleHeight);
    painter.fillRect(processor, QColor(232, 232, 232));
    setSize(painter, 9, QFont::Bold);
    write(painter, processor, Qt::AlignCenter, u"CPU"_s);
    double top = kTitleHeight;
    for (const MappedBus &bus : buses) {
        drawBus(painter, top, bus);
        top += heightOf(bus);
    }
}

} // namespace

void BusDrawing::addTo(QTextDocument &document)
{
    static const QRegularExpression kMark(u"\\{\\{map ([^}]+)\\}\\}"_s);
    document.documentLayout()->registerHandler(kMap, this);
    for (QTextCursor mark = document.find(kMark); !mark.isNull(); mark = document.find(kMark, mark)) {
        QTextCharFormat format;
        format.setObjectType(kMap);
        format.setProperty(kModel, kMark.match(mark.selectedText()).captured(1));
        mark.insertText(QString(QChar::ObjectReplacementCharacter), format);
    }
}

QSizeF BusDrawing::intrinsicSize(QTextDocument *document, int position, const QTextFormat &format)
{
    Q_UNUSED(position)
    const double unit = dotsPerPoint(document->documentLayout()->paintDevice());
    return QSizeF(kWidth, heightOf(mappedBuses(format.stringProperty(kModel)))) * unit;
}

void BusDrawing::drawObject(QPainter *painter, const QRectF &rect, QTextDocument *document, int position,
                            const QTextFormat &format)
{
    Q_UNUSED(document)
    Q_UNUSED(position)
    painter->save();
    painter->translate(rect.topLeft());
    painter->scale(rect.width() / kWidth, rect.width() / kWidth);
    drawMap(*painter, format.stringProperty(kModel));
    painter->restore();
}
