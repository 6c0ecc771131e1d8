#pragma once

#include "plainlabel.h"

/// A reading in a frame, right-aligned in the face of numbers; the painter colours it.
class ValueField : public PlainLabel
{
    Q_OBJECT

public:
    /// Wide enough for a sample of what it will show.
    explicit ValueField(const QString &sample, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};
