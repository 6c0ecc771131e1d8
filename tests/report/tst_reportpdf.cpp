#include "paging.h"
#include "reportpdf.h"
#include "reporttext.h"

#include "columns.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocument>
#include <QTextFrame>
#include <QThread>

#include <algorithm>
#include <memory>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;

static ReportDocument reportOf(qsizetype findings, Language language)
{
    ReportDocument report{.title = u"Relatório"_s, .model = u"IP 6s"_s, .language = language};
    for (qsizetype n = 0; n < findings; ++n)
        report.findings.append({.what = u"RAIL_%1"_s.arg(n), .reading = u"1.800 V"_s});
    return report;
}

static QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class TestReportPdf : public QObject
{
    Q_OBJECT

private slots:
    void allThatWasFoundIsInIt_data()
    {
        columns<int, Language, QString>({"findings", "language", "verdict"});
        QTest::newRow("nothing") << 0 << Language::English << u"Nothing was read or judged."_s;
        QTest::newRow("one") << 1 << Language::Portuguese << u"Sem julgamento: 1"_s;
        QTest::newRow("many pages") << 400 << Language::Spanish << u"Sin evaluación: 400"_s;
    }

    void allThatWasFoundIsInIt()
    {
        QFETCH(int, findings);
        QFETCH(Language, language);
        QFETCH(QString, verdict);
        const ReportDocument report = reportOf(findings, language);
        QTextDocument head;
        layOutHead(head, report);
        QVERIFY2(head.toPlainText().contains(verdict), qPrintable(head.toPlainText()));

        const QString path = m_folder.filePath(u"all.pdf"_s);
        QVERIFY(bool(writeReport(report, path)));
        const QByteArray bytes = contents(path);
        QVERIFY(bytes.trimmed().endsWith("%%EOF") && bytes.contains("/FontFile"));
        QCOMPARE(bytes.count("/Type /Page\n") > 1, findings > 100);
    }

    void textsAreShownAsTheyAre_data()
    {
        columns<QString, QString>({"text", "shown"});
        QTest::newRow("markup") << u"<b>R&amp;D</b>"_s << u"<b>R&amp;D</b>"_s;
        QTest::newRow("control characters") << u"a\x1b[2Jb\x01\x7f"_s << u"a\\x1B[2Jb\\x01\\x7F"_s;
        QTest::newRow("turned direction") << u"a\u202Eb"_s << u"a\\u202Eb"_s;
        QTest::newRow("the mark of a drawing") << u"a\uFFFCb"_s << u"a\\uFFFCb"_s;
        QTest::newRow("the end of a table") << u"a\uFDD1b"_s << u"a\\uFDD1b"_s;
    }

    void textsAreShownAsTheyAre()
    {
        QFETCH(QString, text);
        QFETCH(QString, shown);
        ReportDocument report{.title = text, .shop = text, .serial = text, .note = text, .language = Language::English};
        report.findings.append({text, text, text, text, text, text, text, text, 1, 1, FindingVerdict::Fail});
        QTextDocument head;
        layOutHead(head, report);
        QCOMPARE(head.toPlainText().count(shown), 4);
        QTextDocument row;
        layOutFinding(row, report.findings.first(), report.language);
        QCOMPARE(row.toPlainText().count(shown), 8);
        QCOMPARE(row.rootFrame()->childFrames().size(), 1);
    }

    void rowsAreNotTorn()
    {
        QTextDocument columns;
        layOutColumns(columns, Language::English);
        QTextDocument low;
        QTextDocument tall;
        layOutFinding(low, {.what = u"a"_s, .reading = {}}, Language::English);
        layOutFinding(tall, {.what = QString(4000, u'W'), .reading = {}}, Language::English);
        for (QTextDocument *part : {&columns, &low, &tall})
            part->setTextWidth(600);
        const double height = columns.size().height() + 1.5 * low.size().height();
        Paging paging({600, height});
        paging.placeOnEveryPage(columns);
        paging.place(low);
        paging.place(low);
        QCOMPARE(paging.pages(), 2);
        paging.place(tall);
        QVERIFY(paging.pages() > 10);
        const auto heads = std::ranges::count_if(
            paging.slices(), [&](const Slice &slice) { return slice.part == &columns && slice.top == 0; });
        QCOMPARE(heads, paging.pages());
        for (const Slice &slice : paging.slices())
            QVERIFY(slice.top + slice.height <= height + 0.01);
    }

    void logoStaysSmallAndMayBeMissing()
    {
        const QString logo = m_folder.filePath(u"logo.png"_s);
        QImage picture(2000, 1000, QImage::Format_RGB32);
        picture.fill(Qt::blue);
        QVERIFY(picture.save(logo));
        ReportDocument report = reportOf(1, Language::English);
        for (const QString &file : {logo, m_folder.filePath(u"none.png"_s)}) {
            report.logoFile = file;
            const QString path = m_folder.filePath(u"logo.pdf"_s);
            QVERIFY(bool(writeReport(report, path)));
            QCOMPARE(contents(path).contains("/Subtype /Image"), file == logo);
        }
    }

    // The store may come from anywhere: what it names as a picture is looked at before it is opened.
    void oddLogosAreLeftOut_data()
    {
        QTest::addColumn<QString>("file");
        const auto made = [this](const char *name, const QByteArray &bytes) {
            const QString path = m_folder.filePath(QString::fromLatin1(name));
            QFile file(path);
            if (file.open(QIODevice::WriteOnly))
                file.write(bytes);
            return path;
        };
        QTest::newRow("a folder") << m_folder.path();
        QTest::newRow("a drawing that names files")
            << made("logo.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>");
        QTest::newRow("a header of endless dots") << made(
            "huge.png", QByteArray::fromHex("89504e470d0a1a0a0000000d494844520000ffff0000ffff0802000000") + "junk");
#ifdef Q_OS_UNIX
        const QString pipe = m_folder.filePath(u"pipe"_s);
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QTest::newRow("a pipe") << pipe;
        QTest::newRow("a device") << u"/dev/zero"_s;
#endif
    }

    void oddLogosAreLeftOut()
    {
        QFETCH(QString, file);
        QCOMPARE(logoTrouble(file)->key, u"LOGO_NOT_READ"_s);
    }

    void isMadeInAWorker()
    {
        const QString path = m_folder.filePath(u"worker.pdf"_s);
        const std::unique_ptr<QThread> worker(
            QThread::create([&path] { Q_UNUSED(writeReport(reportOf(50, Language::English), path)) }));
        worker->start();
        QVERIFY(worker->wait());
        QVERIFY(contents(path).trimmed().endsWith("%%EOF"));
    }

    void nothingIsLeftWhereItCannotBeWritten()
    {
        const Result<Done> refused = writeReport(reportOf(1, Language::English), m_folder.filePath(u"no/such.pdf"_s));
        QVERIFY(!refused);
        QCOMPARE(refused.trouble().what.key, u"FILE_NOT_WRITTEN"_s);
        const Result<Done> folder = writeReport(reportOf(1, Language::English), m_folder.path());
        QVERIFY(!folder);
    }

private:
    QTemporaryDir m_folder;
};

QTEST_MAIN(TestReportPdf)
#include "tst_reportpdf.moc"
