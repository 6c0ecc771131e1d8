#pragma once

#include "session.h"

#include <QDialog>

/// The language dialog; each choice names its language in itself.
class xIdioma : public QDialog
{
    Q_OBJECT

public:
    explicit xIdioma(Session &session, QWidget *parent = nullptr);
};
