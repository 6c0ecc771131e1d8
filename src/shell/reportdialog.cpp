#include "reportdialog.h"

#include "catalogue.h"
#include "plainlabel.h"
#include "settingkeys.h"
#include "theme.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

struct SettingField
{
    QStringView setting;
    QStringView control;
    QStringView caption;
};

constexpr std::array kSettings = {
    SettingField{u"report-host", u"txtServico", u"Serviço de relatórios"},
    SettingField{u"name", u"txtNome", u"Nome ou empresa"},
    SettingField{u"logo", u"txtLogo", u"Logotipo"},
};

constexpr int kWidth = 520;

} // namespace

ReportDialog::ReportDialog(Session &session, QWidget *parent)
    : QDialog(parent), m_session(session), m_trouble(new PlainLabel)
{
    setObjectName(u"ReportDialog"_s);
    setWindowTitle(text(u"Relatórios"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto *form = new QFormLayout(this);
    form->setContentsMargins(Spacing::group, Spacing::group, Spacing::group, Spacing::group);
    for (std::size_t i = 0; i < kFields; ++i) {
        m_fields[i] = new QLineEdit;
        m_fields[i]->setObjectName(kSettings[i].control.toString());
        m_fields[i]->setAccessibleName(text(kSettings[i].caption));
        const bool isFile = i + 1 == kFields;
        form->addRow(new PlainLabel(text(kSettings[i].caption)), isFile ? fieldWithBrowse(m_fields[i]) : m_fields[i]);
    }
    m_fields[0]->setPlaceholderText(text(u"vazio: o programa faz o PDF"));
    m_trouble->setWordWrap(true);
    m_trouble->hide();
    form->addRow(m_trouble);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Save)->setText(text(u"Salvar"));
    buttons->button(QDialogButtonBox::Cancel)->setText(text(u"Cancelar"));
    connect(buttons, &QDialogButtonBox::accepted, this, &ReportDialog::keep);
    connect(buttons, &QDialogButtonBox::rejected, this, &ReportDialog::reject);
    form->addRow(buttons);
    setMinimumWidth(kWidth);
    load();
}

QString ReportDialog::text(QStringView key) const
{
    return caption(key, m_session.language());
}

QWidget *ReportDialog::fieldWithBrowse(QLineEdit *field)
{
    auto *frame = new QWidget;
    auto *row = new QHBoxLayout(frame);
    row->setContentsMargins(0, 0, 0, 0);
    auto *browse = new QPushButton(text(u"Procurar…"));
    browse->setObjectName(u"btProcurar"_s);
    connect(browse, &QPushButton::clicked, this, [this, field] { chooseLogo(field); });
    row->addWidget(field, 1);
    row->addWidget(browse);
    return frame;
}

void ReportDialog::chooseLogo(QLineEdit *field)
{
    auto *const dialog = new QFileDialog(this, text(u"Logotipo"), field->text(), u"PNG, JPEG (*.png *.jpg *.jpeg)"_s);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, field, &QLineEdit::setText);
    dialog->open();
}

void ReportDialog::load()
{
    for (std::size_t i = 0; i < kFields; ++i) {
        m_session.withStore<QString>(
            Store::Access::Read,
            [name = kSettings[i].setting](Store &store) { return namedSetting(store, name.toString()); }, this,
            [field = m_fields[i]](const QString &value) { field->setText(value); });
    }
}

bool ReportDialog::isAccepted(std::size_t place)
{
    const std::optional<Trouble> wrong = settingTrouble(kSettings[place].setting.toString(), value(place));
    if (wrong)
        m_trouble->setText(message(wrong->what, m_session.language())->lines.join(u'\n'));
    m_trouble->setVisible(wrong.has_value());
    return !wrong;
}

/// All or nothing: a value that is not accepted is told, and the dialog stays.
void ReportDialog::keep()
{
    for (std::size_t i = 0; i < kFields; ++i)
        if (!isAccepted(i))
            return m_fields[i]->setFocus();
    for (std::size_t i = 0; i < kFields; ++i) {
        m_session.keep([name = kSettings[i].setting.toString(), value = value(i)](Store &store) {
            return setNamedSetting(store, name, value);
        });
    }
    accept();
}

QString ReportDialog::value(std::size_t place) const
{
    return m_fields[place]->text().trimmed();
}
