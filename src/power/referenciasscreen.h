#pragma once

#include "readingscreen.h"
#include "referenciasreading.h"

/// Makes references of known-good boards, for the rails of a model that have none; after showing what would change, and
/// not for ever.
class ReferenciasScreen : public ReadingScreen
{
    Q_OBJECT

public:
    explicit ReferenciasScreen(Session &session, QObject *parent = nullptr);

    void open() override { load(); }

    void btExecutaLeitura_Click() { read(); }
    /// Keeps what this board read, after a question. The phone is asked for its serial number first: the same board
    /// counts once.
    void btTomar_Click();
    /// Forgets the board that was taken last, after a question.
    void btDesfazer_Click();

    void take(const Delivery &delivery) override;
    void release(Release why, const Delivery &partial) override;

protected:
    bool isPrepared() const override { return m_isLoaded; }
    void prepare() override { load(); }
    void readingBegan() override;
    void readingStopped() override {}
    void rebuild() override;

private:
    /// The board that was read.
    enum class Board
    {
        Open,
        Taken ///< it is among the earlier ones: what it read is not counted twice
    };

    void load();
    bool mayTake();
    void propose();
    QString proposal() const;
    void keepBoard(const QList<GoodReading> &readings);
    void forget(const QString &board);
    QString lastBoard() const;
    QStringList sameBoards() const;
    QList<GoodReading> earlierWithout(const QStringList &boards) const;
    ReferenciasInput input() const;
    QMap<QString, Field> state() const;
    /// Runs a write, and shows what the store holds then.
    void write(std::function<Result<Done>(Store &)> work, Board after);

    ReferenciasInput m_input; ///< as the store holds it
    ReferenciasReading m_read;
    bool m_isLoaded = false;
    Board m_board = Board::Open;
    QString m_serial; ///< of the board that was read, once the phone told it
    bool m_isAskingSerial = false;
};
