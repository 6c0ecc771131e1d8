#pragma once

#include "language.h"
#include "panel.h"

#include <QJsonArray>
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

/// The messages that were shown, by key; a box without a key is its title and text.
QJsonArray messagesArray(const QList<Notice> &messages);

/// One line of JSON with a line end.
QString document(const QJsonObject &object);
