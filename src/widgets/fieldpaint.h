#pragma once

#include "panel.h"

class QWidget;

/// Brings a control from what was painted last to the field: the parts that are set and differ. Returns everything
/// that is painted now.
Field paintField(QWidget &control, const Field &field, const Field &painted);
