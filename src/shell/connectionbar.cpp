#include "connectionbar.h"

#include "catalogue.h"
#include "icons.h"
#include "models.h"
#include "plainlabel.h"
#include "plaintext.h"
#include "statuslamp.h"
#include "theme.h"

#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int kDescriptionRole = Qt::UserRole + 1;
// Wide enough for the longest word of each, so that a new state moves nothing.
constexpr int kStatusWidth = 126;
constexpr int kConnectWidth = 132;
constexpr int kDeviceWidth = 200;
constexpr int kPortWidth = 320;
constexpr int kModelWidth = 200;

/// The list shows what is behind a port number; the field keeps the bare number.
class PortDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->text = index.data(Qt::DisplayRole).toString() + u"   "_s + index.data(kDescriptionRole).toString();
    }
};

QString description(const PortEntry &port)
{
    QStringList parts{port.device};
    for (const QString &part : {port.maker, port.serialNumber})
        if (!part.isEmpty())
            parts.append(part);
    return parts.join(" · "_L1);
}

template <typename T>
T *made(T *widget, const QString &name)
{
    widget->setObjectName(name);
    return widget;
}

Light lightOf(Lamp lamp)
{
    static constexpr std::array kLights = {Light::White, Light::Yellow, Light::Green};
    return kLights.at(static_cast<std::size_t>(lamp));
}

/// The newest models carry the successor of the older port controller.
QString portController(const QString &model)
{
    return isNewestGeneration(model) ? u"Hydra"_s : u"Tristar"_s;
}

} // namespace

ConnectionBar::ConnectionBar(Session &session, QWidget *parent)
    : QWidget(parent),
      m_session(session),
      m_imgStatus(made(new StatusLamp, u"ImgStatus"_s)),
      m_lbFramePorta(made(new PlainLabel, u"lbFramePorta"_s)),
      m_cbPortas(made(new QComboBox, u"cbPortas"_s)),
      m_lbBox(made(new PlainLabel, u"lbBox"_s)),
      m_imgAtualizar(made(new QToolButton, u"imgAtualizar"_s)),
      m_lbSpeed(new PlainLabel),
      m_comboBox(made(new QComboBox, u"ComboBox"_s)),
      m_connect(made(new QPushButton, u"Botoes(1)"_s)),
      m_lbModeloFundo(made(new PlainLabel, u"lbModeloFundo"_s)),
      m_comboAparelhos(made(new QComboBox, u"ComboAparelhos"_s)),
      m_comboAparelhosX(made(new QComboBox, u"ComboAparelhosX"_s)),
      m_lbModelo(made(new PlainLabel, u"lbModelo"_s)),
      m_lbTristarTigris(made(new PlainLabel, u"lbTristarTigris"_s)),
      m_lbSimulado(made(new PlainLabel, u"lbSimulado"_s))
{
    m_cbPortas->setEditable(true);
    m_cbPortas->setInsertPolicy(QComboBox::NoInsert);
    m_cbPortas->setItemDelegate(new PortDelegate(m_cbPortas));
    m_cbPortas->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_cbPortas->setMinimumContentsLength(4);
    m_cbPortas->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_cbPortas->setMaximumWidth(kPortWidth);
    m_comboBox->addItems({u"1"_s, u"2"_s});
    for (QComboBox *models : {m_comboAparelhos, m_comboAparelhosX}) {
        models->addItems(modelNames());
        models->setPlaceholderText(u"—"_s);
    }
    m_connect->setProperty("primary", true);
    m_connect->setMinimumWidth(kConnectWidth);
    for (QWidget *control : {static_cast<QWidget *>(m_cbPortas), static_cast<QWidget *>(m_comboBox),
                             static_cast<QWidget *>(m_comboAparelhos), static_cast<QWidget *>(m_comboAparelhosX)})
        control->setMinimumHeight(Spacing::target);
    m_imgStatus->setMinimumWidth(kStatusWidth);
    m_lbBox->setMaximumWidth(kDeviceWidth);
    m_lbBox->setFont(textFont(TextSize::Small));
    m_lbSimulado->setFont(textFont(TextSize::Small));
    m_lbModelo->setFont(textFont(TextSize::Large));
    m_lbModelo->setMaximumWidth(kModelWidth);
    m_lbTristarTigris->setFont(textFont(TextSize::Small));
    layOut();
    connectControls();
}

void ConnectionBar::layOut()
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(Spacing::group, Spacing::control, Spacing::control, Spacing::control);
    row->setSpacing(Spacing::control);
    for (QWidget *widget :
         {static_cast<QWidget *>(m_imgStatus), static_cast<QWidget *>(m_lbFramePorta),
          static_cast<QWidget *>(m_cbPortas), static_cast<QWidget *>(m_imgAtualizar), static_cast<QWidget *>(m_lbBox),
          static_cast<QWidget *>(m_lbSpeed), static_cast<QWidget *>(m_comboBox), static_cast<QWidget *>(m_connect)})
        row->addWidget(widget);
    row->addSpacing(Spacing::group);
    for (QWidget *widget : {static_cast<QWidget *>(m_lbModeloFundo), static_cast<QWidget *>(m_comboAparelhos),
                            static_cast<QWidget *>(m_comboAparelhosX)})
        row->addWidget(widget);
    row->addStretch();
    for (QWidget *widget : {m_lbSimulado, m_lbTristarTigris, m_lbModelo})
        row->addWidget(widget);
}

void ConnectionBar::connectControls()
{
    connect(m_imgAtualizar, &QToolButton::clicked, this, &ConnectionBar::portsWanted);
    connect(m_connect, &QPushButton::clicked, this, [this] { emit connectPressed(port()); });
    connect(m_cbPortas->lineEdit(), &QLineEdit::returnPressed, m_connect, &QPushButton::click);
    connect(new QShortcut(Qt::Key_F2, this), &QShortcut::activated, m_connect, &QPushButton::click);
    connect(new QShortcut(Qt::Key_F4, this), &QShortcut::activated, m_cbPortas, [this] {
        m_cbPortas->setFocus(Qt::ShortcutFocusReason);
        m_cbPortas->lineEdit()->selectAll();
    });
    connect(m_cbPortas, &QComboBox::currentTextChanged, this, &ConnectionBar::paintDevice);
    connect(m_comboBox, &QComboBox::textActivated, &m_session, &Session::chooseSpeed);
    for (QComboBox *models : {m_comboAparelhos, m_comboAparelhosX})
        connect(models, &QComboBox::textActivated, &m_session, &Session::chooseModel);
    connect(&m_session, &Session::statusChanged, this, &ConnectionBar::paintStatus);
    connect(&m_session, &Session::modelChanged, this, &ConnectionBar::paintModel);
    connect(&m_session, &Session::speedChanged, this, [this] { m_comboBox->setCurrentText(m_session.speed()); });
}

QString ConnectionBar::port() const
{
    return m_cbPortas->currentText();
}

void ConnectionBar::setPort(const QString &port)
{
    m_cbPortas->setCurrentText(port);
    if (!m_cbPortas->lineEdit()->hasFocus())
        m_cbPortas->lineEdit()->setCursorPosition(0); // a long name is known by its start
}

void ConnectionBar::listPorts(const QList<PortEntry> &ports)
{
    const QString typed = m_cbPortas->currentText();
    const bool keep = !typed.isEmpty() && portAddress(typed).kind != PortAddress::Kind::Number;
    {
        const QSignalBlocker quiet(m_cbPortas);
        m_cbPortas->clear();
        for (const PortEntry &port : ports) {
            m_cbPortas->addItem(QString::number(port.number));
            m_cbPortas->setItemData(m_cbPortas->count() - 1, description(port), kDescriptionRole);
        }
    }
    m_cbPortas->setCurrentIndex(m_cbPortas->count() - 1);
    if (keep)
        setPort(typed);
    paintDevice();
}

void ConnectionBar::paintDevice()
{
    m_cbPortas->lineEdit()->setToolTip(plainToolTip(port())); // a long one is cut in the field
    const int place = m_cbPortas->findText(port());
    const QString none = m_cbPortas->count() == 0 && port().isEmpty()
                             ? caption(u"Nenhuma porta encontrada", m_session.language())
                             : QString();
    const QString shown = place < 0 ? none : m_cbPortas->itemData(place, kDescriptionRole).toString();
    m_lbBox->setText(shown);
    m_lbBox->setVisible(!shown.isEmpty());
}

void ConnectionBar::paintStatus()
{
    m_imgStatus->setLight(lightOf(m_session.lamp()), m_session.St1());
    m_connect->setText(m_session.connectCaption());
    m_connect->setToolTip(plainToolTip(m_session.connectCaption() + "  (F2)"_L1));
    m_connect->setAccessibleName(m_session.connectCaption());
    const bool idle = m_session.lamp() == Lamp::Branco;
    m_cbPortas->setEnabled(idle);
    m_imgAtualizar->setEnabled(idle);
    m_lbSimulado->setVisible(!idle && portAddress(port()).kind == PortAddress::Kind::Simulated);
    paintModel();
}

void ConnectionBar::paintModel()
{
    m_comboAparelhos->setVisible(!m_session.isModelKnown());
    m_comboAparelhosX->setVisible(m_session.isModelKnown());
    const bool isToBeChosen = m_session.isConnected() && !m_session.isModelKnown(); // the last phone's is no answer
    for (QComboBox *models : {m_comboAparelhos, m_comboAparelhosX})
        models->setCurrentIndex(isToBeChosen ? -1 : models->findText(m_session.model()));
    m_lbModelo->setText(m_session.lbModelo());
    m_lbTristarTigris->setText(portController(m_session.model()) + "\nTigris"_L1);
    m_lbTristarTigris->setVisible(m_session.isModelKnown());
}

void ConnectionBar::Traducao_Form()
{
    const auto text = [this](QStringView key) { return caption(key, m_session.language()); };
    m_lbFramePorta->setText(text(u"Porta COM"));
    m_cbPortas->setAccessibleName(text(u"Porta COM"));
    m_cbPortas->setToolTip(plainToolTip(text(u"Porta COM de comunicação com o dispositivo") + "  (F4)"_L1));
    m_imgAtualizar->setIcon(lineIcon(u"refresh"));
    m_imgAtualizar->setToolTip(plainToolTip(text(u"Atualizar portas")));
    m_imgAtualizar->setAccessibleName(text(u"Atualizar portas"));
    m_lbSpeed->setText(text(u"Velocidade"));
    m_comboBox->setAccessibleName(text(u"Velocidade"));
    m_comboBox->setToolTip(plainToolTip(u"1: %1   2: %2"_s.arg(text(u"Rápida"), text(u"Lenta"))));
    m_lbModeloFundo->setText(text(u"Modelo"));
    m_lbSimulado->setText(text(u"Telefone simulado").replace(u' ', u'\n'));
    m_lbSimulado->setAccessibleName(text(u"Telefone simulado"));
    for (QComboBox *models : {m_comboAparelhos, m_comboAparelhosX}) {
        models->setAccessibleName(text(u"Modelo do dispositivo"));
        models->setToolTip(plainToolTip(text(u"Selecione o modelo do dispositivo")));
    }
    m_lbModelo->setAccessibleName(text(u"Modelo detectado"));
    paintStatus();
    paintDevice();
}

void ConnectionBar::focusModel()
{
    const QWidget *holder = QApplication::focusWidget();
    if (holder && holder->testAttribute(Qt::WA_InputMethodEnabled))
        return; // what is being typed would choose a model
    (m_session.isModelKnown() ? m_comboAparelhosX : m_comboAparelhos)->setFocus();
}
