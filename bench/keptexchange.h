#pragma once

#include <QByteArray>

/// What the exchange log in the state folder says that the phone sent, all its files in order; empty without a log.
QByteArray keptExchange();
