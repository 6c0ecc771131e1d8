#include "rfs.h"

#include "chipreading.h"
#include "icons.h"
#include "marklabel.h"
#include "plainlabel.h"
#include "rfsscreen.h"
#include "theme.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

struct ActionColumn
{
    QLatin1StringView array;
    QStringView caption;
    void (*click)(RFsScreen &radios, int radio);
};

constexpr std::array kActions = {
    ActionColumn{"btOn"_L1, u"Ligar", [](RFsScreen &radios, int radio) { radios.btOn_Click(radio); }},
    ActionColumn{"btOff"_L1, u"Desligar", [](RFsScreen &radios, int radio) { radios.btOff_Click(radio); }},
    ActionColumn{"btPropriedades"_L1, u"Propriedades",
                 [](RFsScreen &radios, int radio) { radios.btPropriedades_Click(radio); }},
};

constexpr int kFieldWidth = 110;

} // namespace

RFs::RFs(Session &session, QWidget *parent)
    : CheckForm(std::make_unique<RFsScreen>(session), parent), m_radios(static_cast<RFsScreen &>(screen()))
{
    m_btTensoesRF = named(new QPushButton, u"btTensoesRF"_s);
    connect(m_btTensoesRF, &QPushButton::clicked, &m_radios, &RFsScreen::btTensoesRF_Click);
    auto *body = new QWidget;
    auto *column = new QVBoxLayout(body);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Spacing::group);
    column->addWidget(radios());
    column->addWidget(texts(), 1);
    layOut({.note = u"lbStatius"_s, .buttons = {comparatorButton(), m_btTensoesRF}, .choices = {}, .body = body});
}

QWidget *RFs::radios()
{
    auto *frame = new QWidget;
    auto *grid = new QGridLayout(frame);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(Spacing::control);
    for (int index = 0; index < kRadios; ++index) {
        auto *field = named(new PlainLabel, radio(index).field);
        field->setAlignment(Qt::AlignCenter);
        field->setMinimumSize(kFieldWidth, Spacing::target);
        field->setFrameShape(QFrame::StyledPanel);
        grid->addWidget(field, index, 0);
        int column = 1;
        for (const ActionColumn &action : kActions) {
            QPushButton *const button = testButton(element(QString(action.array), index));
            connect(button, &QPushButton::clicked, &m_radios,
                    [this, index, click = action.click] { click(m_radios, index); });
            grid->addWidget(button, index, column++);
            m_buttons.append(button);
        }
    }
    auto *outcome = new QWidget;
    auto *row = controlRow(outcome);
    row->addWidget(markNamed(u"OK"_s, Verdict::Pass));
    row->addWidget(markNamed(u"NO"_s, Verdict::Fail));
    row->addWidget(largeLabel(u"lbStatus2"_s), 1);
    row->addWidget(named(new PlainLabel, u"lbAguarde"_s));
    grid->addWidget(outcome, 0, static_cast<int>(kActions.size()) + 1, kRadios, 1);
    grid->setColumnStretch(static_cast<int>(kActions.size()) + 1, 1);
    return frame;
}

QWidget *RFs::texts()
{
    auto *frame = new QWidget;
    auto *row = controlRow(frame);
    row->addWidget(replyBox(), 1);
    row->addWidget(comparator(), 1);
    return frame;
}

void RFs::Traducao_Form()
{
    CheckForm::Traducao_Form();
    for (qsizetype i = 0; i < m_buttons.size(); ++i) {
        const auto &action = kActions.at(static_cast<std::size_t>(i) % kActions.size());
        const Radio &of = radio(static_cast<int>(i) / static_cast<int>(kActions.size()));
        m_buttons[i]->setText(text(action.caption));
        m_buttons[i]->setAccessibleName(of.name.toString() + u' ' + text(action.caption));
    }
    m_btTensoesRF->setText(text(u"TensoesRF"));
    m_btTensoesRF->setIcon(lineIcon(u"rf"));
}
