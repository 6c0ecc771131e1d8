#include "savedialog.h"

#include <QFileDialog>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

void askForFile(QWidget *parent, const FileWish &wish, const std::function<void(const QString &)> &write)
{
    static constexpr QLatin1StringView kEndings[] = {"csv"_L1, "json"_L1, "pdf"_L1, "txt"_L1, "log"_L1};
    const QString ending = kEndings[static_cast<std::size_t>(wish.kind)];
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString filter = u"%1 (*.%2)"_s.arg(ending.toUpper(), ending);
    auto *const dialog = new QFileDialog(parent, wish.title, folder, filter);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(ending);
    dialog->selectFile(wish.name + u'.' + ending);
    QObject::connect(dialog, &QFileDialog::fileSelected, parent, write);
    dialog->open();
}
