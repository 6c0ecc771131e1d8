#include "pseudoterminal.h"

#include <QFile>

#include <array>
#include <fcntl.h>
#include <stdlib.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

namespace {

int makeMaster()
{
    const int master = ::posix_openpt(O_RDWR | O_NOCTTY);
    if (master < 0)
        return -1;
    const bool ready = ::grantpt(master) == 0 && ::unlockpt(master) == 0 && ::fcntl(master, F_SETFL, O_NONBLOCK) == 0 &&
                       ::fcntl(master, F_SETFD, FD_CLOEXEC) == 0;
    if (ready)
        return master;
    ::close(master);
    return -1;
}

int openRawSlave(int master)
{
    const int slave = ::open(::ptsname(master), O_RDWR | O_NOCTTY | O_CLOEXEC);
    termios mode = {};
    if (slave < 0 || ::tcgetattr(slave, &mode) != 0)
        return slave;
    ::cfmakeraw(&mode);
    ::tcsetattr(slave, TCSANOW, &mode);
    return slave;
}

} // namespace

std::unique_ptr<PseudoTerminal> PseudoTerminal::make()
{
    const int master = makeMaster();
    if (master < 0)
        return nullptr;
    const int slave = openRawSlave(master);
    if (slave < 0) {
        ::close(master);
        return nullptr;
    }
    return std::unique_ptr<PseudoTerminal>(new PseudoTerminal(master, slave));
}

PseudoTerminal::PseudoTerminal(int master, int slave) : m_master(master), m_slave(slave) {}

PseudoTerminal::~PseudoTerminal()
{
    ::close(m_master);
    ::close(m_slave);
}

QString PseudoTerminal::path() const
{
    return QFile::decodeName(::ptsname(m_master));
}

qintptr PseudoTerminal::descriptor() const
{
    return m_master;
}

QByteArray PseudoTerminal::read()
{
    std::array<char, 4096> buffer;
    const ssize_t count = ::read(m_master, buffer.data(), buffer.size());
    return count > 0 ? QByteArray(buffer.data(), count) : QByteArray();
}

qsizetype PseudoTerminal::write(QByteArrayView bytes)
{
    const ssize_t count = ::write(m_master, bytes.data(), static_cast<size_t>(bytes.size()));
    return count > 0 ? count : 0;
}

qsizetype PseudoTerminal::unread() const
{
    int count = 0;
    return ::ioctl(m_slave, FIONREAD, &count) == 0 ? count : 0;
}
