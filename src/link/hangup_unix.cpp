#include "hangup.h"

#include <poll.h>

bool hasHungUp(const QSerialPort &line)
{
    pollfd request{.fd = line.handle(), .events = 0, .revents = 0};
    return ::poll(&request, 1, 0) > 0 && (request.revents & (POLLHUP | POLLNVAL)) != 0;
}
