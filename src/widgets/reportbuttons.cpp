#include "reportbuttons.h"

#include "catalogue.h"
#include "icons.h"
#include "plaintext.h"
#include "readingform.h"
#include "savedialog.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QToolButton>

using namespace Qt::StringLiterals;

ReportButtons::ReportButtons(Screen &screen, QWidget *parent)
    : QWidget(parent),
      m_export(screen),
      m_btExportar(named(new QPushButton, u"btExportar"_s)),
      m_imgPdf(named(new QToolButton, u"imgPdf"_s)),
      m_btSalvarPdf(named(new QToolButton, u"btSalvarPdf"_s))
{
    auto *row = controlRow(this);
    row->setSpacing(0);
    row->addWidget(m_imgPdf);
    row->addWidget(m_btExportar);
    row->addWidget(m_btSalvarPdf);
    for (QToolButton *button : {m_imgPdf, m_btSalvarPdf})
        button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(m_btExportar, &QPushButton::clicked, &m_export, &ReportExport::btExportar_Click);
    connect(m_imgPdf, &QToolButton::clicked, &m_export, &ReportExport::btExportar_Click);
    connect(m_btSalvarPdf, &QToolButton::clicked, this, &ReportButtons::chooseFile);
    connect(&m_export, &ReportExport::busyChanged, this, [this] { setEnabled(!m_export.isBusy()); });
}

static void label(QToolButton &button, QStringView icon, const QString &text)
{
    button.setIcon(lineIcon(icon));
    button.setToolTip(plainToolTip(text));
    button.setAccessibleName(text);
}

void ReportButtons::Traducao(Language language)
{
    m_language = language;
    const QString text = caption(u"Gerar Relatório PDF", language);
    m_btExportar->setText(text);
    label(*m_imgPdf, u"pdf", text);
    label(*m_btSalvarPdf, u"save", caption(u"Salvar relatório como…", language));
}

void ReportButtons::chooseFile()
{
    if (m_export.hasSomething())
        askForFile(this, {caption(u"Salvar relatório como…", m_language), m_export.suggestedName(), FileKind::Pdf},
                   [this](const QString &path) { m_export.savePdf(path); });
}
