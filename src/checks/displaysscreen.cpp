#include "displaysscreen.h"

#include "chipreading.h"

using namespace Qt::StringLiterals;

static constexpr auto kUsualText = "Tavimo_Prelt"_L1;

DisplaysScreen::DisplaysScreen(Session &session, QObject *parent) : CheckScreen(session, u"Displays"_s, u"3"_s, parent)
{
}

/// The number behind "bl:" or "level:".
static std::optional<int> numberBehind(const QString &button, QLatin1StringView kind)
{
    bool isNumber = false;
    const int number = button.mid(kind.size()).toInt(&isNumber);
    return button.startsWith(kind) && isNumber ? std::optional(number) : std::nullopt;
}

bool DisplaysScreen::isButton(const QString &button)
{
    const auto level = numberBehind(button, "level:"_L1);
    const auto light = numberBehind(button, "bl:"_L1);
    return colourCommand(button, {}) || (level && *level >= kLowestLevel && *level <= kHighestLevel) ||
           (light && !lightCommand(*light).isEmpty());
}

void DisplaysScreen::press(const QString &button)
{
    if (const auto light = numberBehind(button, "bl:"_L1))
        btBl_Click(*light);
    else if (const auto level = numberBehind(button, "level:"_L1))
        Slider1_Change(*level);
    else
        Cor_Click(button);
}

void DisplaysScreen::Cor_Click(const QString &button)
{
    if (isReading())
        return;
    m_button = button;
    const bool isSure = session().isModelKnown() || !session().isConnected();
    if (isSure && isSixFamily(session().model())) {
        refuseModel();
        return checkEnded();
    }
    if (!m_text.isEmpty() && m_text.trimmed().isEmpty()) {
        session().refuse({u"DISPLAY_TEXT_BLANK"_s});
        return checkEnded();
    }
    const QString before = m_text;
    m_text = m_text.isEmpty() ? QString(kUsualText) : m_text.remove(u' ');
    if (m_text != before)
        emit textCorrected(m_text);
    if (const auto command = colourCommand(button, m_text)) {
        m_command = *command;
        ask({.command = *command, .needsModel = true, .refuses = isSixFamily});
    }
}

void DisplaysScreen::btBl_Click(int index)
{
    if (index == kDisplayChipButton)
        emit screenRequested(displayChipScreen(session().model()));
    if (isReading() || lightCommand(index).isEmpty())
        return;
    m_button = u"bl:%1"_s.arg(index);
    sendCommand(lightCommand(index));
}

void DisplaysScreen::Slider1_Change(int level)
{
    m_button = u"level:%1"_s.arg(level);
    if (isReading())
        m_nextLevel = level;
    else
        sendCommand(u"bl -p %1"_s.arg(level));
}

void DisplaysScreen::sendCommand(const QString &command)
{
    m_command = command;
    ask({.command = command});
}

/// The level that was chosen last wins.
void DisplaysScreen::checkEnded()
{
    emit readingEnded();
    const std::optional<int> level = std::exchange(m_nextLevel, std::nullopt);
    if (level && session().isReady())
        Slider1_Change(*level);
}

Panel DisplaysScreen::makeReading() const
{
    return readDisplay({m_command, txtDados(), hasReading(), session().model(), session().language()});
}

QMap<QString, Field> DisplaysScreen::state() const
{
    QMap<QString, Field> fields = CheckScreen::state();
    for (const ColourButton &button : colourButtons())
        fields[button.name] = {.enabled = !isReading()};
    for (int index = 0; index <= kLastLightButton; ++index)
        if (!lightCommand(index).isEmpty())
            fields[element(u"btBl", index)] = {.enabled = !isReading()};
    fields[element(u"btBl", kDisplayChipButton)] = {.text = caption(u"Tensões") + u' ' +
                                                            displayChipScreen(session().model())};
    return fields;
}
