#include "xidioma.h"

#include "catalogue.h"
#include "plainlabel.h"
#include "theme.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

xIdioma::xIdioma(Session &session, QWidget *parent) : QDialog(parent)
{
    static constexpr std::array<std::pair<Language, QStringView>, 3> kChoices = {
        {{Language::Portuguese, u"PORTUGUÊS"}, {Language::English, u"INGLÊS"}, {Language::Spanish, u"ESPANHOL"}}};
    setObjectName(u"xIdioma"_s);
    setWindowTitle(caption(u"Idioma", session.language()));
    setAttribute(Qt::WA_DeleteOnClose);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Spacing::group, Spacing::group, Spacing::group, Spacing::group);
    layout->addWidget(new PlainLabel(caption(u"Idiomas disponíveis", session.language())));
    for (const auto &[language, key] : kChoices) {
        auto *button = new QPushButton(caption(key, language));
        button->setObjectName(u"btIdioma(%1)"_s.arg(static_cast<int>(language)));
        button->setCheckable(true);
        button->setChecked(language == session.language());
        button->setMinimumHeight(Spacing::target);
        connect(button, &QPushButton::clicked, this, [this, &session, chosen = language] {
            session.chooseLanguage(chosen);
            accept();
        });
        layout->addWidget(button);
    }
    setMinimumWidth(280);
}
