#include "guidetext.h"
#include "pdffile.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class TestReport : public QObject
{
    Q_OBJECT

private slots:
    void commandTableFollowsTheLanguage()
    {
        const QString text = guideText(u"# A\n\n{{commands es}}\n\nend {{commands fr}}"_s);
        QVERIFY(text.contains(u"\n| `nandsize` | Tamaño de la memoria NAND |\n"));
        QVERIFY(text.endsWith(u"\n\nend {{commands fr}}")); // what is not known stays to be seen
        QVERIFY(!text.contains(u"Size of the NAND"));
    }

    void documentIsWholeOrNotThere()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(u"a.pdf"_s);
        QVERIFY(bool(writePdf(u"# Title\n\n| a | b |\n| - | - |\n| c | d |\n"_s, u"Title"_s, path)));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        QVERIFY(bytes.startsWith("%PDF-") && bytes.trimmed().endsWith("%%EOF"));
        QVERIFY(bytes.contains("/Font"));

        const Result<Done> refused = writePdf(u"x"_s, u"x"_s, folder.filePath(u"no/such/folder.pdf"_s));
        QVERIFY(!refused);
        QCOMPARE(refused.trouble().what.key, u"PDF_NOT_WRITTEN"_s);
    }
};

QTEST_MAIN(TestReport)
#include "tst_report.moc"
