#pragma once

#include "checkscreen.h"
#include "displaysreading.h"

/// The display: a colour over all of it, its light, and its mode.
class DisplaysScreen : public CheckScreen
{
    Q_OBJECT

public:
    explicit DisplaysScreen(Session &session, QObject *parent = nullptr);

    /// Repeats what was done last, or does what was chosen.
    void read() override { press(m_button); }

    /// A button by its name: a colour ("Cor_Azul"), "bl:N" or "level:N".
    void press(const QString &button);
    void chooseButton(const QString &button) { m_button = button; }
    /// Whether there is such a button.
    static bool isButton(const QString &button);

    const QString &txt_Texto_Cores() const { return m_text; }
    void txt_Texto_Cores_Change(const QString &text) { m_text = text; }
    void Cor_Click(const QString &button);
    void btBl_Click(int index);
    void Slider1_Change(int level);

signals:
    /// The text had to be changed: the phone takes one word.
    void textCorrected(const QString &text);

protected:
    Panel makeReading() const override;
    QMap<QString, Field> state() const override;
    void checkEnded() override;

private:
    void sendCommand(const QString &command);

    QString m_button = QStringLiteral("bl:8");
    QString m_text;
    QString m_command;
    std::optional<int> m_nextLevel; ///< chosen while a command was in flight
};
