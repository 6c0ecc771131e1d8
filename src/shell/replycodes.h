#pragma once

#include <QString>

/// What happens to the replies of one active-screen code.
struct ReplyCode
{
    QLatin1StringView code;
    QLatin1StringView screen;
    bool stripsEcho = false;        ///< every occurrence of the command is taken out of the reply
    bool rebindsRecordings = false; ///< the screen's recorded-data view follows the command
    bool endsBySilence = false;     ///< a long reply with pauses; the prompt is not looked for
};

/// The code of the main window itself: its replies feed the model detection.
inline constexpr QLatin1StringView kMainWindowCode{"0"};
inline constexpr QLatin1StringView kBatteryLongCode{"19"};
/// The survey asks in place of every screen; what has pauses, under a code of its own.
inline constexpr QLatin1StringView kSurveyCode{"20"};
inline constexpr QLatin1StringView kSurveyLongCode{"21"};

/// The row of a code, or none.
const ReplyCode *replyCode(const QString &code);

/// The reply as a screen of this code gets it.
QString replyForCode(const QString &code, const QString &reply, const QString &command);
