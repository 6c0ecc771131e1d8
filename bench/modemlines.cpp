// Preloaded into a program under test: a pseudo-terminal has no modem lines, and some programs close a port that
// refuses to tell them. Here every line seems to take them.

#include <cerrno>
#include <cstdarg>
#include <sys/ioctl.h>
#include <sys/syscall.h>
#include <unistd.h>

static bool isAboutModemLines(unsigned long request)
{
    return request == TIOCMGET || request == TIOCMSET || request == TIOCMBIS || request == TIOCMBIC;
}

extern "C" int ioctl(int descriptor, unsigned long request, ...)
{
    va_list arguments;
    va_start(arguments, request);
    void *argument = va_arg(arguments, void *);
    va_end(arguments);
    const auto result = static_cast<int>(::syscall(SYS_ioctl, descriptor, request, argument));
    if (result >= 0 || errno != ENOTTY || !isAboutModemLines(request))
        return result;
    if (request == TIOCMGET)
        *static_cast<int *>(argument) = 0;
    return 0;
}
