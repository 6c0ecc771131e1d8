#include "displays.h"

#include "catalogue.h"

#include "chipreading.h"
#include "displaysscreen.h"
#include "plainlabel.h"
#include "theme.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

#include <array>

using namespace Qt::StringLiterals;

static constexpr int kColourColumns = 3;
static constexpr std::array<QLatin1StringView, 3> kLevels = {"  1 Low"_L1, "  2 Medium"_L1, "  3 Hight"_L1};

Displays::Displays(Session &session, QWidget *parent)
    : CheckForm(std::make_unique<DisplaysScreen>(session), parent), m_display(static_cast<DisplaysScreen &>(screen()))
{
    layOut({.note = u"lbStatus2"_s, .buttons = {}, .choices = {}, .body = body()});
    connect(&m_display, &DisplaysScreen::textCorrected, m_txtTextoCores, &QLineEdit::setText);
    connect(m_txtTextoCores, &QLineEdit::textEdited, &m_display, &DisplaysScreen::txt_Texto_Cores_Change);
}

QWidget *Displays::body()
{
    auto *left = column({colours(), light(), level()});
    auto *right = new QVBoxLayout;
    auto *result = controlRow();
    result->addWidget(m_lbResolucao = largeLabel(u"lbResolucao"_s), 1);
    result->addWidget(named(new PlainLabel, u"lbAguarde"_s));
    right->addLayout(result);
    right->addWidget(replyBox(), 1);
    auto *frame = new QWidget;
    auto *row = controlRow(frame);
    row->setSpacing(Spacing::group);
    row->addWidget(left);
    row->addLayout(right, 1);
    return frame;
}

QWidget *Displays::colours()
{
    m_frameCores = named(new QGroupBox, u"FrameCores"_s);
    auto *grid = new QGridLayout(m_frameCores);
    m_txtTextoCores = named(new QLineEdit, u"txt_Texto_Cores"_s);
    grid->addWidget(m_txtTextoCores, 0, 0, 1, kColourColumns);
    int place = 0;
    for (const ColourButton &colour : colourButtons()) {
        QPushButton *const button = testButton(colour.name);
        const QString name = colour.name;
        connect(button, &QPushButton::clicked, &m_display, [this, name] { m_display.Cor_Click(name); });
        grid->addWidget(button, 1 + place / kColourColumns, place % kColourColumns);
        m_colours.append(button);
        ++place;
    }
    return m_frameCores;
}

QWidget *Displays::light()
{
    m_frameLuz = named(new QGroupBox, u"FrameLuz"_s);
    auto *grid = new QGridLayout(m_frameLuz);
    for (int index = 0; index <= kLastLightButton; ++index) {
        if (lightCommand(index).isEmpty() && index != kDisplayChipButton)
            continue;
        QPushButton *const button = testButton(element(u"btBl", index));
        connect(button, &QPushButton::clicked, &m_display, [this, index] { m_display.btBl_Click(index); });
        const auto place = static_cast<int>(m_btBl.size());
        grid->addWidget(button, place / 2, place % 2);
        m_btBl.append({index, button});
    }
    return m_frameLuz;
}

/// Dragging sends on release, keys send at once.
QWidget *Displays::level()
{
    m_lbNivel = named(new PlainLabel, u"lbNivel"_s);
    m_slider1 = named(new QSlider(Qt::Horizontal), u"Slider1"_s);
    m_slider1->setRange(kLowestLevel, kHighestLevel);
    m_slider1->setTickPosition(QSlider::TicksBelow);
    m_slider1->setPageStep(1);
    m_slider1->setTracking(false);
    connect(m_slider1, &QSlider::valueChanged, &m_display, &DisplaysScreen::Slider1_Change);
    auto *frame = new QWidget;
    auto *grid = new QGridLayout(frame);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(m_lbNivel, 0, 0, 1, static_cast<int>(kLevels.size()));
    grid->addWidget(m_slider1, 1, 0, 1, static_cast<int>(kLevels.size()));
    static constexpr std::array kSides = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
    for (std::size_t i = 0; i < kLevels.size(); ++i)
        grid->addWidget(new PlainLabel(QString(kLevels[i])), 2, static_cast<int>(i), kSides[i]);
    return frame;
}

/// The caption of a light or mode button; that of the chip comes with the panel.
static QString lightCaption(int index, Language language, QString (*word)(QStringView, Language))
{
    static constexpr std::array<QStringView, 3> kKeys = {u"Testar", u"Desligar", u"Testar Todos Níveis"};
    if (index == 0)
        return word(kKeys[0], language) + " BackLight"_L1;
    if (index < 3)
        return word(kKeys[static_cast<std::size_t>(index)], language);
    if (index < 6)
        return QString(kLevels[static_cast<std::size_t>(index - 3)]).trimmed();
    return index == kModeButton ? word(u"Resolução", language) : QString();
}

void Displays::Traducao_Form()
{
    CheckForm::Traducao_Form();
    for (qsizetype i = 0; i < m_colours.size(); ++i)
        m_colours[i]->setText(text(colourButtons()[static_cast<std::size_t>(i)].caption));
    for (const auto &[index, button] : std::as_const(m_btBl))
        if (index != kDisplayChipButton)
            button->setText(lightCaption(index, language(), caption));
    m_frameCores->setTitle(text(u"Cores"));
    m_frameLuz->setTitle(u"BackLight"_s);
    m_txtTextoCores->setAccessibleName(text(u"Cores"));
    m_txtTextoCores->setPlaceholderText(u"Tavimo_Prelt"_s);
    m_lbNivel->setText(text(u"Nível"));
    m_slider1->setAccessibleName(text(u"Nível"));
    m_lbResolucao->setAccessibleName(text(u"Resolução"));
}
