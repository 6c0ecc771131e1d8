#include "stopsignals.h"

StopSignals::StopSignals(QObject *parent) : QObject(parent) {}

StopSignals::~StopSignals() = default;
