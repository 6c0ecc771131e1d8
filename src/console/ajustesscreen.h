#pragma once

#include "recordings.h"
#include "screen.h"

#include <array>

/// The recordings of one command by a model and by its Plus variant, side by side, to be edited and masked.
class AjustesScreen : public Screen
{
    Q_OBJECT

public:
    enum class Side
    {
        Base, ///< `Data1`
        Plus  ///< `Data2`
    };

    /// What stands in the two editors; nothing where it was left alone.
    using Edits = std::array<std::optional<QString>, 2>;

    explicit AjustesScreen(Session &session, QObject *parent = nullptr);

    static const QStringList &baseModels();

    void open() override;
    /// Looks for the two recordings again.
    void read() override { select(m_model, m_command); }
    bool hasReading() const override { return row(Side::Base) || row(Side::Plus); }

    const QString &model() const { return m_model; }
    const QString &command() const { return m_command; }
    const QStringList &commands() const { return m_commands; }
    const std::optional<KeptRecording> &row(Side side) const { return m_rows[static_cast<std::size_t>(side)]; }
    QString recording(Side side) const;

    /// `ComboAparelhos` and `txtComandos`; edits that are not saved are asked for first.
    void select(const QString &model, const QString &command, const std::optional<Edits> &unsaved = {});
    void btAtualizar_Click(const Edits &edits);
    /// Masks a side with the stored texts as they are, and saves.
    void Command1_Click(const Edits &edits) { maskAndSave(Side::Base, edits); }
    void Command3_Click(const Edits &edits) { maskAndSave(Side::Plus, edits); }
    void Command2_Click();
    /// Something is typed that is not saved.
    void setEdited();
    /// Something was typed into a recording that is only shown: why that is so.
    void refuseTyping(Side side);

    void take(const Delivery &delivery) override { Q_UNUSED(delivery) }
    void resume() override {}
    void release(Release why, const Delivery &partial) override
    {
        Q_UNUSED(why)
        Q_UNUSED(partial)
    }

signals:
    void commandsLoaded();
    void recordingsReplaced();

private:
    RecordingKey keyOf(Side side) const;
    void load(const std::function<void()> &then = {});
    void save(const Edits &edits, const std::function<void()> &then);
    void maskAndSave(Side side, const Edits &edits);
    Recording changed(Side side, const QString &text) const;
    void rebuild();

    QString m_model;
    QString m_command;
    QStringList m_commands;
    std::array<std::optional<KeptRecording>, 2> m_rows;
    bool m_saved = false; ///< "Salvo " is shown until something else is done
};
