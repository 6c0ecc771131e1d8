#include "buckldo.h"

#include "buckldoscreen.h"
#include "icons.h"
#include "panelgrid.h"
#include "plaintext.h"
#include "theme.h"
#include "verdictbadge.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QToolButton>

using namespace Qt::StringLiterals;

static constexpr std::array kColumns = {
    GridColumn{u"Verdict", u"Veredito", ColumnKind::Verdict}, GridColumn{u"Orig", u"Saída", ColumnKind::Name},
    GridColumn{u"Malha", u"Malha", ColumnKind::Name},         GridColumn{u"Ci", u"IC", ColumnKind::Text},
    GridColumn{u"Leitura", u"Leitura", ColumnKind::Number},   GridColumn{u"REF", u"Referência", ColumnKind::Number},
    GridColumn{u"PORC", u"Desvio", ColumnKind::Deviation},    GridColumn{u"G1", u"Gravação 1", ColumnKind::Number},
    GridColumn{u"G2", u"Gravação 2", ColumnKind::Number},     GridColumn{u"G3", u"Gravação 3", ColumnKind::Number},
};

static constexpr int kBarWidth = 200;

static QString element(const QString &array, int index)
{
    return u"%1(%2)"_s.arg(array).arg(index);
}

static QHBoxLayout *rowLayout(QWidget *parent = nullptr)
{
    auto *layout = new QHBoxLayout(parent);
    layout->setSpacing(Spacing::control);
    if (parent)
        layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}

BuckLdo::BuckLdo(Session &session, QWidget *parent)
    : ScreenForm(std::make_unique<BuckLdoScreen>(session), parent),
      m_rails(static_cast<BuckLdoScreen &>(screen())),
      m_rows(kColumns)
{
    for (int i = 0; i < 4; ++i)
        m_botao[static_cast<std::size_t>(i)] = named(new QPushButton, u"Botao%1"_s.arg(i + 1));
    m_dbGrid1 = named(new PanelGrid(m_rows), u"DBGrid1"_s);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Spacing::control, Spacing::control, Spacing::control, Spacing::control);
    layout->setSpacing(Spacing::control);
    layout->addLayout(headRow());
    layout->addLayout(choiceRow());
    layout->addWidget(m_hint = named(new QLabel, u"lbDica"_s));
    layout->addWidget(m_dbGrid1, 1);
    layout->addLayout(noteRow());
    painter().setRows(&m_rows);
    connectControls();
}

QHBoxLayout *BuckLdo::headRow()
{
    m_title = named(new QLabel, u"lbTitulo"_s);
    m_badge = named(new VerdictBadge, u"Veredito"_s);
    m_botao[3]->setProperty("primary", true);
    auto *row = rowLayout();
    row->setSpacing(Spacing::group);
    row->addWidget(m_badge);
    row->addWidget(m_title);
    row->addStretch();
    row->addWidget(kinds());
    row->addWidget(m_botao[2]);
    row->addWidget(m_botao[3]);
    return row;
}

QHBoxLayout *BuckLdo::choiceRow()
{
    auto *row = rowLayout();
    row->setSpacing(Spacing::group);
    row->addWidget(orders());
    row->addWidget(decimals());
    row->addStretch();
    row->addWidget(recordings());
    return row;
}

QWidget *BuckLdo::kinds()
{
    auto *frame = named(new QWidget, u"FrameSelecoes"_s);
    auto *row = rowLayout(frame);
    row->setSpacing(0);
    auto *group = new QButtonGroup(frame);
    for (QPushButton *button : {m_botao[0], m_botao[1]}) {
        button->setCheckable(true);
        group->addButton(button);
        row->addWidget(button);
    }
    return frame;
}

QWidget *BuckLdo::orders()
{
    auto *frame = named(new QWidget, u"Frame1"_s);
    auto *row = rowLayout(frame);
    row->addWidget(m_lbClassificacao = named(new QLabel, u"lbClassificacao"_s));
    static constexpr std::array<QStringView, 3> kNames = {u"OpMalha", u"OpIc", u"OpPorc"};
    for (std::size_t i = 0; i < kNames.size(); ++i) {
        m_orders[i] = named(new QRadioButton, kNames[i].toString());
        row->addWidget(m_orders[i]);
    }
    return frame;
}

QWidget *BuckLdo::decimals()
{
    auto *frame = new QWidget;
    auto *row = rowLayout(frame);
    m_lbInfoDecimais = named(new QLabel, u"lbInfoDecimais"_s);
    m_comboDecimais = named(new QComboBox, u"ComboDecimais"_s);
    m_comboDecimais->addItems({u"1"_s, u"2"_s, u"3"_s});
    m_comboDecimaisAmp = named(new QComboBox, u"ComboDecimaisAmp"_s);
    m_comboDecimaisAmp->addItems({u"0"_s, u"1"_s, u"2"_s, u"3"_s});
    for (QWidget *widget : {static_cast<QWidget *>(m_lbInfoDecimais), static_cast<QWidget *>(m_comboDecimais),
                            static_cast<QWidget *>(m_comboDecimaisAmp)})
        row->addWidget(widget);
    return frame;
}

QWidget *BuckLdo::recordings()
{
    auto *frame = named(new QWidget, u"FrameGravacao"_s);
    auto *row = rowLayout(frame);
    row->addWidget(m_lbGravacao = named(new QLabel, u"lbGravacao"_s));
    for (int slot = 1; slot <= 3; ++slot) {
        const auto place = static_cast<std::size_t>(slot - 1);
        m_btGravar[place] = named(new QToolButton, element(u"btGravar"_s, slot));
        m_btExcluir[place] = named(new QToolButton, element(u"btExcluir"_s, slot));
        m_btGravar[place]->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        m_btGravar[place]->setText(QString::number(slot));
        m_btExcluir[place]->setProperty("flat", true);
        for (QToolButton *button : {m_btGravar[place], m_btExcluir[place]})
            button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        row->addWidget(m_btGravar[place]);
        row->addWidget(m_btExcluir[place]);
    }
    return frame;
}

QHBoxLayout *BuckLdo::noteRow()
{
    m_lbVar = named(new QLabel, u"lbVar"_s);
    m_lbVar->setWordWrap(true);
    m_lbVar->setFont(textFont(TextSize::Small));
    m_frameVCore = named(new QWidget, u"FrameVCore"_s);
    m_lbBarra = new QLabel;
    m_barra = named(new QProgressBar, u"Barra"_s);
    m_barra->setMinimumWidth(kBarWidth);
    auto *progress = rowLayout(m_frameVCore);
    progress->addWidget(m_lbBarra);
    progress->addWidget(m_barra);
    auto *row = rowLayout();
    row->addWidget(m_lbVar, 1);
    row->addWidget(m_frameVCore);
    return row;
}

void BuckLdo::connectControls()
{
    // A button's own shortcut is lost with every new caption.
    connect(new QShortcut(Qt::Key_F5, this), &QShortcut::activated, m_botao[3], &QPushButton::click);
    connect(&screen().session(), &Session::statusChanged, this, &BuckLdo::paintHint);
    connect(m_botao[0], &QPushButton::clicked, &m_rails, &BuckLdoScreen::Botao1_Click);
    connect(m_botao[1], &QPushButton::clicked, &m_rails, &BuckLdoScreen::Botao2_Click);
    connect(m_botao[2], &QPushButton::clicked, &m_rails, &BuckLdoScreen::Botao3_Click);
    connect(m_botao[3], &QPushButton::clicked, &m_rails, &BuckLdoScreen::Botao4_Click);
    connect(m_orders[0], &QRadioButton::clicked, &m_rails, &RailScreen::OpMalha_Click);
    connect(m_orders[1], &QRadioButton::clicked, &m_rails, &RailScreen::OpIc_Click);
    connect(m_orders[2], &QRadioButton::clicked, &m_rails, &RailScreen::OpPorc_Click);
    connect(m_comboDecimais, &QComboBox::textActivated, &m_rails, &RailScreen::ComboDecimais_Click);
    connect(m_comboDecimaisAmp, &QComboBox::textActivated, &m_rails, &RailScreen::ComboDecimaisAmp_Click);
    connect(m_dbGrid1, &PanelGrid::activated, &m_rails, &RailScreen::DBGrid1_Click);
    for (int slot = 1; slot <= 3; ++slot) {
        const auto place = static_cast<std::size_t>(slot - 1);
        connect(m_btGravar[place], &QToolButton::clicked, &m_rails, [this, slot] { m_rails.btGravar_Click(slot); });
        connect(m_btExcluir[place], &QToolButton::clicked, &m_rails, [this, slot] { m_rails.btExcluir_Click(slot); });
        for (QToolButton *button : {m_btGravar[place], m_btExcluir[place]})
            connect(button, &QToolButton::clicked, this, &BuckLdo::keepingAsked);
    }
}

void BuckLdo::Traducao_Form()
{
    static constexpr std::array<QStringView, 4> kButtons = {u"Bucks", u"LDOs", u"PMU", u"Executar Leitura"};
    static constexpr std::array<QStringView, 3> kOrders = {u"Malha", u"IC", u"%"};
    for (std::size_t i = 0; i < kButtons.size(); ++i)
        m_botao[i]->setText(plainText(text(kButtons[i])));
    for (std::size_t i = 0; i < kOrders.size(); ++i)
        m_orders[i]->setText(text(kOrders[i]));
    m_botao[2]->setIcon(lineIcon(u"pmu"));
    m_botao[3]->setIcon(lineIcon(u"read", currentTheme().onAccent));
    m_botao[3]->setText(text(u"Executar Leitura") + "  F5"_L1);
    m_botao[3]->setAccessibleName(text(u"Executar Leitura"));
    m_lbClassificacao->setText(text(u"Classificação"));
    m_lbGravacao->setText(text(u"Gravação"));
    m_lbInfoDecimais->setText(text(u"Casas Decimais") + ": V / mA"_L1);
    m_comboDecimais->setAccessibleName(text(u"Decimais de V"));
    m_comboDecimaisAmp->setAccessibleName(text(u"Decimais de mA"));
    m_dbGrid1->setAccessibleName(text(u"Buck & Ldo"));
    m_lbBarra->setText(text(u"Realizando Leitura..."));
    m_barra->setAccessibleName(text(u"Realizando Leitura..."));
    m_rows.setLanguage(language());
    m_dbGrid1->setLanguage(language());
    m_badge->setLanguage(language());
    paintHint();
    for (int slot = 1; slot <= 3; ++slot) {
        const auto place = static_cast<std::size_t>(slot - 1);
        const QString record = text(u"Gravar") + u' ' + QString::number(slot);
        const QString erase = text(u"Excluir") + u' ' + QString::number(slot);
        m_btGravar[place]->setIcon(lineIcon(u"record"));
        m_btGravar[place]->setToolTip(record);
        m_btGravar[place]->setAccessibleName(record);
        m_btExcluir[place]->setIcon(lineIcon(u"delete"));
        m_btExcluir[place]->setToolTip(erase);
        m_btExcluir[place]->setAccessibleName(erase);
    }
}

void BuckLdo::paintPanel()
{
    ScreenForm::paintPanel();
    const Panel &panel = screen().panel();
    m_title->setText(panel.title);
    m_badge->setPanel(panel);
    paintHint();
    const QString model = m_rails.session().model();
    m_dbGrid1->setEmptyText(model.isEmpty() ? text(u"DICA_MODELO") : text(u"DICA_SEM_LINHAS").arg(model));
    m_dbGrid1->setExportName(u"BuckLdo %1"_s.arg(model));
}

/// What is to be done next, or why what is seen is not what the phone says now.
static QStringView hintKey(const Screen &screen)
{
    const Session &session = screen.session();
    if (screen.hasReading())
        return session.isConnected() ? QStringView() : u"Última leitura mantida na tela";
    if (session.Status() == "2"_L1)
        return u"Aguarde...";
    if (!session.isConnected())
        return u"DICA_CONECTAR";
    return session.isModelKnown() ? u"DICA_LER" : u"Selecione o modelo do dispositivo";
}

void BuckLdo::paintHint()
{
    const bool reading = screen().panel().fields.value(u"FrameVCore"_s).visible.value_or(false);
    const QStringView key = reading ? QStringView() : hintKey(screen());
    m_hint->setText(key.isEmpty() ? QString() : text(key));
    m_hint->setVisible(!key.isEmpty());
}
