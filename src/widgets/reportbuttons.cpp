#include "reportbuttons.h"

#include "catalogue.h"
#include "icons.h"
#include "readingform.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStandardPaths>
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
    button.setToolTip(text);
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
    if (!m_export.hasSomething())
        return;
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    auto *const dialog =
        new QFileDialog(this, caption(u"Salvar relatório como…", m_language), folder, u"PDF (*.pdf)"_s);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(u"pdf"_s);
    dialog->selectFile(m_export.suggestedName() + ".pdf"_L1);
    connect(dialog, &QFileDialog::fileSelected, &m_export, &ReportExport::savePdf);
    dialog->open();
}
