#pragma once

#include <QPlainTextEdit>
#include <QTimer>

/// Text of the phone in a face of equal widths: as many lines as stay fluid, the newest, painted now and then, larger
/// or smaller by Ctrl and wheel. What is looked for is marked wherever it is seen.
class TextPane : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit TextPane(const QString &name, QWidget *parent = nullptr);

    /// A pane to type in shows all of its text.
    void setEditable(bool editable);

    /// Adds text that is visible already at the end. Who reads there goes along, who reads elsewhere stays.
    void add(const QString &text);
    /// Adds text of the phone at the next painting; of a flood the newest.
    void addSoon(const QString &text);
    /// Shows this text of the phone and nothing else, from its beginning.
    void replaceWith(const QString &text);

    /// How many lines the text has that was shown last, whole or in part.
    int linesOfText() const { return m_linesOfText; }
    bool showsAll() const { return !isReadOnly() || m_linesOfText <= kLinesShown; }
    void mark(const QString &text);
    /// How many times the marked text occurs, and the number of the occurrence that is chosen; 0 for none.
    int hits() const;
    int chosenHit() const;

    static constexpr int kLinesShown = 4000;

signals:
    /// A text was typed that is only shown.
    void typedInVain();

public slots:
    void TimerTexto_Timer();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void markSeen();
    int hitsBefore(int position) const;
    void zoom(int steps);

    QTimer m_timer;
    QString m_soon;
    QString m_marked;
    int m_linesOfText = 0;
    double m_points;
};
