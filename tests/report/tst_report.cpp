#include "busdrawing.h"
#include "busmap.h"
#include "columns.h"
#include "guidetext.h"
#include "pdffile.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocument>

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

    /// A device of the table is drawn on its bus, and a bus without one is drawn all the same.
    void mapHoldsTheBusesOfTheModel_data()
    {
        columns<QString, QString>({"model", "map"});
        QTest::newRow("public record") << u"IP 6s"_s << u"0:27 62 74 1:1A 40 75 2:29"_s;
        QTest::newRow("gaps") << u"IP 8"_s << u"0:27~ 2:29~ 3:51~ 4: 6: 7:"_s;
        QTest::newRow("sister model") << u"IP 8 Plus"_s << u"0:27~ 2:29~ 3:51 4: 6: 7:"_s;
        QTest::newRow("nothing known") << u"IP X"_s << u"0: 3: 4: 5: 6: 7:"_s;
    }

    void mapHoldsTheBusesOfTheModel()
    {
        QFETCH(const QString, model);
        QStringList map;
        for (const MappedBus &bus : mappedBuses(model)) {
            QStringList devices;
            for (const MappedDevice &device : bus.devices)
                devices.append(device.address.mid(2) + (device.confidence == Confidence::Low ? u"~"_s : QString()));
            map.append(QString::number(bus.bus) + u':' + devices.join(u' '));
        }
        QTEST(map.join(u' '), "map");
    }

    /// A mark that is left in the text would be printed.
    void mapStandsInPlaceOfItsMark()
    {
        QTextDocument document;
        document.setMarkdown(u"# A\n\n{{map IP 7}}\n\ntext\n\n{{map IP X}}\n"_s);
        BusDrawing maps;
        maps.addTo(document);
        QCOMPARE(document.toPlainText().count(QChar::ObjectReplacementCharacter), 2);
        QVERIFY(!document.toPlainText().contains("{{"_L1));
        QVERIFY(document.size().height() > 250); // the maps have taken their room
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
        QCOMPARE(refused.trouble().what.key, u"FILE_NOT_WRITTEN"_s);
    }
};

QTEST_MAIN(TestReport)
#include "tst_report.moc"
