#include "pseudoterminal.h"

// There are no pseudo-terminals here: none is ever made, so the rest is never called.

std::unique_ptr<PseudoTerminal> PseudoTerminal::make()
{
    return nullptr;
}

PseudoTerminal::PseudoTerminal(int master, int slave) : m_master(master), m_slave(slave) {}
PseudoTerminal::~PseudoTerminal() = default;

QString PseudoTerminal::path() const
{
    return {};
}

qintptr PseudoTerminal::descriptor() const
{
    return m_master;
}

QByteArray PseudoTerminal::read()
{
    return {};
}

qsizetype PseudoTerminal::write(QByteArrayView)
{
    return 0;
}

qsizetype PseudoTerminal::unread() const
{
    return m_slave;
}
