#include "hangup.h"

bool hasHungUp(const QSerialPort &)
{
    return false;
}
