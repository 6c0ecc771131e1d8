#pragma once

#include "reportexport.h"

#include <QWidget>

class QPushButton;
class QToolButton;

/// The buttons of a screen that can be reported: the request with its picture, and beside it, to save the document.
class ReportButtons : public QWidget
{
    Q_OBJECT

public:
    explicit ReportButtons(Screen &screen, QWidget *parent = nullptr);

    void Traducao(Language language);

private:
    void chooseFile();

    ReportExport m_export;
    Language m_language = Language::English;
    QPushButton *m_btExportar;
    QToolButton *m_imgPdf;
    QToolButton *m_btSalvarPdf;
};
