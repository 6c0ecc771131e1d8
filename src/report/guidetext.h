#pragma once

#include <QString>

/// The text of a guide as Markdown, with the command table of the seeds in place of "{{commands pt}}", "{{commands
/// en}}" or "{{commands es}}".
QString guideText(const QString &source);
