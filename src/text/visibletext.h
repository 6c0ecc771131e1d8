#pragma once

#include <QByteArrayView>
#include <QString>

/// Text as it may be shown to a person: whatever would steer a terminal or hide in a line is spelled out instead.
/// Control characters and other unseen ones are written by number (\x1B, \u202E), for the pictures of them are in few
/// faces; a line end of LF or CR LF is one line break, tabs stay. Text that is visible already stays as it is.
QString visibleText(QStringView text);

/// The same for bytes of the phone, each one character.
QString visibleText(QByteArrayView bytes);

/// The same for the text of a JSON document: unseen characters are escaped (\u009B), so that whoever reads the document
/// gets them as they were.
QString visibleJson(QStringView json);
