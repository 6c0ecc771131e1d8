#pragma once

#include "language.h"
#include "panel.h"

#include <QJsonObject>

/// What surrounds a reading in the output of a command.
struct ReadingContext
{
    QString model;
    Language language = Language::Portuguese;
    QString command;
    QList<Notice> messages; ///< in the order shown
};

/// A reading as scripts get it.
QJsonObject toJson(const Panel &panel, const ReadingContext &context);

/// One line of JSON with a line end.
QString document(const QJsonObject &object);
