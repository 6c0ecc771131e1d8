#pragma once

#include "checkscreen.h"
#include "outrosreading.h"

/// The self-tests of the memory, the way to the battery, and the guide to panic logs.
class OutrosScreen : public CheckScreen
{
    Q_OBJECT

public:
    explicit OutrosScreen(Session &session, QObject *parent = nullptr);

    void read() override { btBl_Click(m_index); }

    /// The index of a test button; others start nothing.
    void btBl_Click(int index);
    /// The test that the next reading runs.
    void chooseTest(int index) { m_index = index; }
    void btBateria_Click();
    void btPanicFull_Click();

protected:
    Panel makeReading() const override;
    QMap<QString, Field> state() const override;
    QString waitText(QStringView key) const override { return caption(key) + u'!'; }

private:
    int m_index = kFullMemoryTest;
};
