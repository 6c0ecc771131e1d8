#include "lineinput.h"

QByteArray takeInput(QSerialPort &line)
{
    line.clear(QSerialPort::Input);
    return {};
}
