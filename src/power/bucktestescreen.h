#pragma once

#include "bucktestereading.h"
#include "screen.h"

/// The phone's own check of its bucks, one at a time or one after the other, beside what was recorded.
class BuckTesteScreen : public Screen
{
    Q_OBJECT

public:
    explicit BuckTesteScreen(Session &session, QObject *parent = nullptr);

    /// What `Pesquisa` does.
    enum class Mode
    {
        Usual = 3, ///< offers the usual buck
        Check = 4  ///< tests the chosen one
    };

    void open() override { PreProcesso(); }
    void read() override;
    bool hasReading() const override { return !m_input.replies.isEmpty(); }

    /// The number of the buck as typed or chosen.
    const QString &Combo1() const { return m_combo1; }
    void Combo1_Change(const QString &text) { m_combo1 = text; }
    /// The next reading goes over all bucks.
    void chooseAll() { m_wantsAll = true; }

    void btBl_Click() { Pesquisa(Mode::Check); }
    /// Tests every buck that the model has.
    void Botao1_Click();
    /// Ends the run; what was tested stays.
    void Botao2_Click();

    /// Asks for the model if it is not known, and learns which bucks it has.
    void PreProcesso();
    void Pesquisa(Mode mode);

    /// The verdicts of the panel's lines.
    const QList<Verdict> &lineVerdicts() const { return m_verdicts; }
    /// What the bucks want to be told of: those without a reading, and those that were not tested.
    QString unmeasured() const;

    void take(const Delivery &delivery) override;
    void resume() override {}
    void release(Release why, const Delivery &partial) override;

private:
    void loadBucks();
    void start(const QList<int> &bucks);
    void sendNext();
    void end();
    void forget();
    void rebuild();
    bool isReading() const { return !m_waiting.isEmpty(); }
    int progress() const;
    QList<int> untested() const;
    QMap<QString, Field> state() const;

    QString m_combo1;
    bool m_wantsAll = false;
    int m_lastBuck = -1;  ///< of the model; below 0: not known
    QList<int> m_asked;   ///< the bucks of the last test
    QList<int> m_waiting; ///< the buck in flight and those that come after it
    bool m_isCancelled = false;
    BuckInput m_input;
    QList<Verdict> m_verdicts;
};
