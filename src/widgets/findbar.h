#pragma once

#include "language.h"

#include <QPointer>
#include <QTextDocument>
#include <QWidget>

class QLabel;
class QLineEdit;
class QToolButton;
class TextPane;

/// Finds in a text pane, marks every hit, copies and saves.
class FindBar : public QWidget
{
    Q_OBJECT

public:
    /// The buttons to copy and to save are named after what they are for: "btCopiar…", "btSalvar…".
    explicit FindBar(const QString &what, QWidget *parent = nullptr);

    /// The pane to look in. A bar has one at a time.
    void setPane(TextPane *pane);
    TextPane *pane() const { return m_pane; }
    void Traducao_Form(Language language, QStringView saveKey);

public slots:
    /// Takes what is selected as what is looked for.
    void begin();

signals:
    void saveWanted();

private:
    enum class Direction
    {
        Forwards,
        Backwards
    };

    QToolButton *button(const QString &name);
    void find(Direction direction);
    void findTyped(const QString &text);
    void findAround(QTextDocument::FindFlags flags);
    void tellHits();
    void copy();

    QPointer<TextPane> m_pane;
    Language m_language = Language::English;
    QLineEdit *m_find;
    QToolButton *m_previous;
    QToolButton *m_next;
    QLabel *m_hit;
    QToolButton *m_copy;
    QToolButton *m_save;
};
