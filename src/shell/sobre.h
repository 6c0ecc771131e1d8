#pragma once

#include "language.h"

#include <QDialog>

/// The about window.
class Sobre : public QDialog
{
    Q_OBJECT

public:
    Sobre(Language language, const QString &storePath, QWidget *parent = nullptr);

signals:
    void importWanted();
};
