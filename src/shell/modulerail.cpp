#include "modulerail.h"

#include "catalogue.h"
#include "icons.h"
#include "plainlabel.h"
#include "plaintext.h"
#include "railbutton.h"
#include "theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QShortcut>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

static QString buttonName(const Module &module)
{
    return module.botao > 0 ? u"Botoes(%1)"_s.arg(module.botao) : u"bt"_s + module.name;
}

/// The key without its "Ctrl", which stands once over all of them: "⇧1" for "Ctrl+Shift+1".
static QString shortKey(QString shortcut)
{
    return shortcut.remove("Ctrl+"_L1).replace("Shift+"_L1, u"⇧"_s);
}

ModuleRail::ModuleRail(QWidget *parent) : QScrollArea(parent), m_keyHint(new PlainLabel(u"Ctrl +"_s))
{
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(Spacing::control, Spacing::unit, Spacing::unit, Spacing::unit);
    layout->setSpacing(1);
    for (const Module &module : modules()) {
        const int group = static_cast<int>(module.group);
        if (!m_headings.contains(group)) {
            m_headings[group] = new PlainLabel;
            m_headings[group]->setFont(textFont(TextSize::Small));
            m_headings[group]->setContentsMargins(Spacing::unit, group == 0 ? 0 : Spacing::unit, 0, 0);
            layout->addWidget(m_headings[group]);
            if (group == 0)
                addKeyHint(*m_headings[group]);
        }
        layout->addWidget(addButton(module));
    }
    layout->addStretch();
    setWidget(content);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void ModuleRail::addKeyHint(QLabel &heading)
{
    auto *row = new QHBoxLayout(&heading);
    row->setContentsMargins(0, 0, Spacing::control, 0);
    m_keyHint->setFont(textFont(TextSize::Small));
    row->addStretch();
    row->addWidget(m_keyHint);
}

RailButton *ModuleRail::addButton(const Module &module)
{
    auto *button = new RailButton(shortKey(QString(module.shortcut)));
    button->setObjectName(buttonName(module));
    button->setIcon(switchIcon(QString(module.icon)));
    const QString name = module.name;
    connect(button, &RailButton::clicked, this, [this, name] { emit screenPressed(name); });
    auto *shortcut = new QShortcut(QKeySequence(QString(module.shortcut)), this);
    connect(shortcut, &QShortcut::activated, this, [this, name] { emit screenPressed(name); });
    m_buttons.insert(name, button);
    return button;
}

void ModuleRail::Traducao_Form(Language language, const QString &model)
{
    for (const Module &module : modules()) {
        RailButton *button = m_buttons.value(module.name);
        const QString text = caption(captionKey(module, model), language);
        button->setText(text);
        button->setToolTip(plainToolTip(text + u"  ("_s + module.shortcut + u')'));
        button->setAccessibleName(text);
        m_headings.value(static_cast<int>(module.group))->setText(caption(groupCaption(module.group), language));
    }
    setFixedWidth(widget()->sizeHint().width());
}

void ModuleRail::mark(const QString &screen)
{
    for (const auto &[name, button] : m_buttons.asKeyValueRange())
        button->setChecked(name == screen);
}
