#pragma once

#include "session.h"

#include <QDialog>

#include <array>

class QLabel;
class QLineEdit;

/// What reports are made with: the service that makes them, the name on them, and a logo for those that the program
/// makes itself.
class ReportDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ReportDialog(Session &session, QWidget *parent = nullptr);

private:
    static constexpr std::size_t kFields = 3;

    QWidget *fieldWithBrowse(QLineEdit *field);
    void load();
    bool isAccepted(std::size_t place);
    void keep();
    QString value(std::size_t place) const;
    void chooseLogo(QLineEdit *field);
    QString text(QStringView key) const;

    Session &m_session;
    std::array<QLineEdit *, kFields> m_fields;
    QLabel *m_trouble;
};
