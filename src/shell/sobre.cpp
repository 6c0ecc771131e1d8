#include "sobre.h"

#include "catalogue.h"
#include "icons.h"
#include "plainlabel.h"
#include "theme.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

static QLabel *paragraph(const QString &text)
{
    auto *label = new PlainLabel(text);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

Sobre::Sobre(Language language, const QString &storePath, QWidget *parent) : QDialog(parent)
{
    const auto text = [language](QStringView key) { return caption(key, language); };
    setObjectName(u"Sobre"_s);
    setWindowTitle(text(u"Sobre"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto *picture = new PlainLabel;
    picture->setPixmap(programIcon().pixmap(64));
    auto *title = new PlainLabel(u"Tavimo Prelt"_s);
    title->setFont(textFont(TextSize::Large));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Spacing::group, Spacing::group, Spacing::group, Spacing::group);
    layout->setSpacing(Spacing::control);
    layout->addWidget(picture);
    layout->addWidget(title);
    layout->addWidget(new PlainLabel(text(u"Versão") + " 2.22"_L1));
    for (const QStringView key : {u"SOBRE_FINALIDADE", u"SOBRE_REFERENCIAS", u"TERMOS", u"SOBRE_LICENCA"})
        layout->addWidget(paragraph(text(key)));
    layout->addWidget(paragraph(text(u"Dados") + ": "_L1 + storePath));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    buttons->button(QDialogButtonBox::Close)->setText(text(u"Fechar"));
    QPushButton *sync = buttons->addButton(text(u"Sincronizar / Sync"), QDialogButtonBox::ActionRole);
    connect(sync, &QPushButton::clicked, this, [this] {
        emit importWanted();
        accept();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    setMinimumWidth(480);
}
