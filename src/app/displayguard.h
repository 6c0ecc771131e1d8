#pragma once

/// Lives while the toolkit looks for its display. Where there is none the toolkit crashes with half a page of hints:
/// the guard makes one line and an exit code of it.
class DisplayGuard
{
public:
    DisplayGuard();
    ~DisplayGuard();
    DisplayGuard(const DisplayGuard &) = delete;
    DisplayGuard &operator=(const DisplayGuard &) = delete;
};

/// Tells why there is no display, and gives the code to end with.
int endWithoutDisplay(const char *why);
