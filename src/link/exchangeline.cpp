#include "exchangeline.h"

#include <QDateTime>
#include <QTimeZone>

#include <algorithm>

namespace {

constexpr qsizetype kTimeLength = 24;
constexpr qsizetype kBytesAt = kTimeLength + 3; // " < "

struct Escape
{
    char byte;
    char letter;
};

constexpr Escape kEscapes[] = {{'\\', '\\'}, {'\r', 'r'}, {'\n', 'n'}, {'\t', 't'}};

constexpr char kDigits[] = "0123456789ABCDEF";

bool isPlain(char byte)
{
    return byte >= ' ' && byte < '\x7F' && byte != '\\';
}

void appendEscape(QByteArray &line, char byte)
{
    const auto escape = std::ranges::find(kEscapes, byte, &Escape::byte);
    if (escape != std::end(kEscapes)) {
        line.append('\\').append(escape->letter);
        return;
    }
    const auto value = static_cast<unsigned char>(byte);
    const char code[] = {'\\', 'x', kDigits[value >> 4], kDigits[value & 0xF]};
    line.append(code, sizeof code);
}

void appendEscaped(QByteArray &line, const QByteArray &bytes)
{
    for (auto at = bytes.cbegin(); at != bytes.cend();) {
        const auto special = std::find_if_not(at, bytes.cend(), isPlain);
        line.append(at, special - at);
        at = special;
        if (at != bytes.cend())
            appendEscape(line, *at++);
    }
}

int digitValue(char digit)
{
    const auto *const end = std::end(kDigits) - 1;
    const auto *const found = std::find(std::begin(kDigits), end, digit);
    return found == end ? -1 : static_cast<int>(found - std::begin(kDigits));
}

/// Reads one byte and takes what stood for it from the text.
std::optional<char> takeByte(QByteArrayView &text)
{
    const char first = text.front();
    text = text.sliced(1);
    if (first != '\\')
        return first;
    if (text.isEmpty())
        return std::nullopt;
    const char letter = text.front();
    const auto escape = std::ranges::find(kEscapes, letter, &Escape::letter);
    if (escape != std::end(kEscapes)) {
        text = text.sliced(1);
        return escape->byte;
    }
    const int high = letter == 'x' && text.size() >= 3 ? digitValue(text[1]) : -1;
    const int low = high < 0 ? -1 : digitValue(text[2]);
    if (low < 0)
        return std::nullopt;
    text = text.sliced(3);
    return static_cast<char>(high << 4 | low);
}

std::optional<QByteArray> bytesOf(QByteArrayView text)
{
    QByteArray bytes;
    bytes.reserve(text.size());
    while (!text.isEmpty()) {
        const std::optional<char> byte = takeByte(text);
        if (!byte)
            return std::nullopt;
        bytes.append(*byte);
    }
    return bytes;
}

} // namespace

QByteArray exchangeLine(const Exchange &exchange)
{
    QByteArray line =
        QDateTime::fromMSecsSinceEpoch(exchange.milliseconds, Qt::UTC).toString(Qt::ISODateWithMs).toLatin1();
    line.reserve(kBytesAt + exchange.bytes.size() + exchange.bytes.size() / 8);
    line.append(' ').append(static_cast<char>(exchange.direction)).append(' ');
    appendEscaped(line, exchange.bytes);
    if (exchange.bytes.endsWith(' ')) { // editors drop blanks at a line's end
        line.chop(1);
        line.append("\\x20");
    }
    return line.append('\n');
}

std::optional<Exchange> exchangeOf(const QByteArray &line)
{
    using enum Exchange::Direction;
    const QByteArray text = line.endsWith('\n') ? line.chopped(1) : line;
    if (text.size() < kBytesAt || text[kTimeLength] != ' ' || text[kBytesAt - 1] != ' ')
        return std::nullopt;
    const char direction = text[kTimeLength + 1];
    if (direction != static_cast<char>(FromPhone) && direction != static_cast<char>(ToPhone))
        return std::nullopt;
    const QDateTime time = QDateTime::fromString(QString::fromLatin1(text.first(kTimeLength)), Qt::ISODateWithMs);
    const std::optional<QByteArray> bytes = bytesOf(QByteArrayView(text).sliced(kBytesAt));
    if (!time.isValid() || !bytes)
        return std::nullopt;
    return Exchange{time.toMSecsSinceEpoch(), direction == '<' ? FromPhone : ToPhone, *bytes};
}
