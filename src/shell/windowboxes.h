#pragma once

#include "boxes.h"

#include <QDialog>
#include <QPointer>
#include <QWidget>

#include <list>

/// Messages and questions as dialogs over the window, one after the other. Nothing waits for them.
class WindowBoxes : public Boxes
{
public:
    explicit WindowBoxes(std::function<Language()> language) : m_language(std::move(language)) {}

    void setParent(QWidget *parent) { m_parent = parent; }
    void message(const Trouble &trouble) override;
    void ask(const Question &question, std::function<void(Answer)> answered) override;
    void input(const Question &question, const QString &proposal,
               std::function<void(const QString &)> answered) override;

private:
    using Opening = std::function<QDialog *()>;

    void add(Opening open);
    void openNext();
    class QMessageBox *messageBox(const Trouble &trouble) const;
    class QMessageBox *questionBox(const Question &question) const;

    std::function<Language()> m_language;
    QPointer<QWidget> m_parent;
    std::list<Opening> m_waiting;
    bool m_open = false;
};
