#include "lineinput.h"

#include <array>
#include <unistd.h>

namespace {

constexpr qsizetype kMostAtOnce = 1 << 20; // who talks faster than we read must not keep us here

} // namespace

QByteArray takeInput(QSerialPort &line)
{
    QByteArray taken;
    std::array<char, 4096> buffer;
    while (taken.size() < kMostAtOnce) {
        const ssize_t count = ::read(line.handle(), buffer.data(), buffer.size());
        if (count <= 0)
            break;
        taken.append(buffer.data(), count);
    }
    return taken;
}
