#include "railform.h"

#include "icons.h"
#include "panelgrid.h"
#include "theme.h"
#include "verdictbadge.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QRadioButton>
#include <QToolButton>

using namespace Qt::StringLiterals;

static constexpr int kBarWidth = 200;

static QString element(const QString &array, int index)
{
    return u"%1(%2)"_s.arg(array).arg(index);
}

QHBoxLayout *controlRow(QWidget *parent)
{
    auto *layout = new QHBoxLayout(parent);
    layout->setSpacing(Spacing::control);
    if (parent)
        layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}

RailForm::RailForm(std::unique_ptr<RailScreen> screen, std::span<const GridColumn> columns, QWidget *parent)
    : ScreenForm(std::move(screen), parent), m_rails(static_cast<RailScreen &>(this->screen())), m_rows(columns)
{
}

void RailForm::layOut(const QList<QWidget *> &headButtons)
{
    m_dbGrid1 = named(new PanelGrid(m_rows), u"DBGrid1"_s);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Spacing::control, Spacing::control, Spacing::control, Spacing::control);
    layout->setSpacing(Spacing::control);
    layout->addLayout(headRow(headButtons));
    layout->addLayout(choiceRow());
    layout->addWidget(m_hint = named(new QLabel, u"lbDica"_s));
    layout->addWidget(m_dbGrid1, 1);
    layout->addLayout(noteRow());
    painter().setRows(&m_rows);
    connectControls();
    connectRecordings();
}

QHBoxLayout *RailForm::headRow(const QList<QWidget *> &buttons)
{
    m_title = named(new QLabel, u"lbTitulo"_s);
    m_badge = named(new VerdictBadge, u"Veredito"_s);
    auto *row = controlRow();
    row->setSpacing(Spacing::group);
    row->addWidget(m_badge);
    row->addWidget(m_title);
    row->addStretch();
    for (QWidget *button : buttons)
        row->addWidget(button);
    return row;
}

QHBoxLayout *RailForm::choiceRow()
{
    auto *row = controlRow();
    row->setSpacing(Spacing::group);
    row->addWidget(orders());
    row->addWidget(decimals());
    row->addStretch();
    row->addWidget(recordings());
    return row;
}

QWidget *RailForm::orders()
{
    auto *frame = named(new QWidget, u"Frame1"_s);
    auto *row = controlRow(frame);
    row->addWidget(m_lbClassificacao = named(new QLabel, u"lbClassificacao"_s));
    static constexpr std::array<QStringView, 3> kNames = {u"OpMalha", u"OpIc", u"OpPorc"};
    for (std::size_t i = 0; i < kNames.size(); ++i) {
        m_orders[i] = named(new QRadioButton, kNames[i].toString());
        row->addWidget(m_orders[i]);
    }
    return frame;
}

QWidget *RailForm::decimals()
{
    auto *frame = new QWidget;
    auto *row = controlRow(frame);
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

QWidget *RailForm::recordings()
{
    auto *frame = named(new QWidget, u"FrameGravacao"_s);
    auto *row = controlRow(frame);
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

QHBoxLayout *RailForm::noteRow()
{
    m_lbVar = named(new QLabel, u"lbVar"_s);
    m_lbVar->setWordWrap(true);
    m_lbVar->setFont(textFont(TextSize::Small));
    m_frameVCore = named(new QWidget, u"FrameVCore"_s);
    m_lbBarra = new QLabel;
    m_barra = named(new QProgressBar, u"Barra"_s);
    m_barra->setMinimumWidth(kBarWidth);
    auto *progress = controlRow(m_frameVCore);
    progress->addWidget(m_lbBarra);
    progress->addWidget(m_barra);
    auto *row = controlRow();
    row->addWidget(m_lbVar, 1);
    row->addWidget(m_frameVCore);
    return row;
}

void RailForm::connectControls()
{
    connect(&screen().session(), &Session::statusChanged, this, &RailForm::paintHint);
    connect(m_orders[0], &QRadioButton::clicked, &m_rails, &RailScreen::OpMalha_Click);
    connect(m_orders[1], &QRadioButton::clicked, &m_rails, &RailScreen::OpIc_Click);
    connect(m_orders[2], &QRadioButton::clicked, &m_rails, &RailScreen::OpPorc_Click);
    connect(m_comboDecimais, &QComboBox::textActivated, &m_rails, &RailScreen::ComboDecimais_Click);
    connect(m_comboDecimaisAmp, &QComboBox::textActivated, &m_rails, &RailScreen::ComboDecimaisAmp_Click);
    connect(m_dbGrid1, &PanelGrid::activated, &m_rails, &RailScreen::DBGrid1_Click);
    connect(m_dbGrid1, &PanelGrid::exportFailed, &m_rails, [this](const QString &path, const QString &reason) {
        m_rails.session().boxes().message({{u"STORE_FAILED"_s, {path, reason}}});
    });
}

void RailForm::connectRecordings()
{
    for (int slot = 1; slot <= 3; ++slot) {
        const auto place = static_cast<std::size_t>(slot - 1);
        connect(m_btGravar[place], &QToolButton::clicked, &m_rails, [this, slot] { m_rails.btGravar_Click(slot); });
        connect(m_btExcluir[place], &QToolButton::clicked, &m_rails, [this, slot] { m_rails.btExcluir_Click(slot); });
        for (QToolButton *button : {m_btGravar[place], m_btExcluir[place]})
            connect(button, &QToolButton::clicked, this, &RailForm::keepingAsked);
    }
}

void RailForm::Traducao_Form()
{
    static constexpr std::array<QStringView, 3> kOrders = {u"Malha", u"IC", u"%"};
    for (std::size_t i = 0; i < kOrders.size(); ++i)
        m_orders[i]->setText(text(kOrders[i]));
    m_lbClassificacao->setText(text(u"Classificação"));
    m_lbGravacao->setText(text(u"Gravação"));
    m_lbInfoDecimais->setText(text(u"Casas Decimais") + ": V / mA"_L1);
    m_comboDecimais->setAccessibleName(text(u"Decimais de V"));
    m_comboDecimaisAmp->setAccessibleName(text(u"Decimais de mA"));
    m_lbBarra->setText(text(u"Realizando Leitura..."));
    m_barra->setAccessibleName(text(u"Realizando Leitura..."));
    m_rows.setLanguage(language());
    m_dbGrid1->setLanguage(language());
    m_badge->setLanguage(language());
    translateRecordings();
    paintHint();
}

void RailForm::translateRecordings()
{
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

void RailForm::goTo(const QString &what)
{
    ScreenForm::goTo(what);
    for (int place = 0; place < m_rows.rowCount(); ++place)
        if (m_rows.row(place).cell(u"Malha") == what)
            m_dbGrid1->selectRow(place);
}

void RailForm::paintPanel()
{
    ScreenForm::paintPanel();
    const Panel &panel = screen().panel();
    m_title->setText(panel.title);
    m_badge->setPanel(panel);
    paintHint();
    const QString model = m_rails.session().model();
    m_dbGrid1->setEmptyText(model.isEmpty() ? text(u"DICA_MODELO") : text(u"DICA_SEM_LINHAS").arg(model));
    m_dbGrid1->setExportName(u"%1 %2"_s.arg(panel.screen, model));
    m_dbGrid1->setAccessibleName(panel.title);
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

void RailForm::paintHint()
{
    const bool reading = screen().panel().fields.value(u"FrameVCore"_s).visible.value_or(false);
    const QStringView key = reading ? QStringView() : hintKey(screen());
    QStringList hints{m_rails.faultsElsewhere()};
    if (!key.isEmpty())
        hints.append(text(key));
    hints.removeAll(QString());
    m_hint->setText(hints.join(u"   "_s));
    m_hint->setVisible(!hints.isEmpty());
}
