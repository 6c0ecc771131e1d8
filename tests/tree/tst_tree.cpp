#include "sourcetree.h"

#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// Where a target stands and up to which place it may look. Sisters share a place.
struct Place
{
    QLatin1StringView target;
    int place;
    int reach;
};

constexpr QLatin1StringView kWidgets = "prelt_widgets"_L1;

constexpr Place kHouse[] = {
    {"prelt_text"_L1, 0, -1},
    {"prelt_data"_L1, 1, 0},
    {"prelt_report"_L1, 2, 1},
    {"prelt_pdf"_L1, 3, 2},
    {"prelt-guides"_L1, 4, 3},
    {"prelt_link"_L1, 3, 2},
    {"prelt_session"_L1, 4, 3},
    {"prelt_kit"_L1, 5, 4},
    {"prelt_power"_L1, 6, 5},
    {"prelt_chips"_L1, 6, 5},
    {"prelt_checks"_L1, 6, 5},
    {"prelt_console"_L1, 6, 5},
    {"prelt_survey"_L1, 7, 6},
    {kWidgets, 8, 7},
    {"prelt_power_forms"_L1, 9, 8},
    {"prelt_chips_forms"_L1, 9, 8},
    {"prelt_checks_forms"_L1, 9, 8},
    {"prelt_console_forms"_L1, 9, 8},
    {"prelt_survey_forms"_L1, 9, 8},
    {"prelt_window"_L1, 10, 9},
    {"tavimo-prelt"_L1, 11, 10},
    {"gallery"_L1, 11, 10},
    {"prelt"_L1, 11, 7},
    {"prelt_cli"_L1, 12, 7},
    {"prelt_sim"_L1, 12, 3},
};

/// Who may use what stands beside the line: the simulated phone, and the terminal's own pieces.
constexpr std::pair<QLatin1StringView, QLatin1StringView> kBeside[] = {
    {"prelt_cli"_L1, "prelt_sim"_L1},    {"prelt"_L1, "prelt_sim"_L1},   {"prelt"_L1, "prelt_cli"_L1},
    {"tavimo-prelt"_L1, "prelt_sim"_L1}, {"gallery"_L1, "prelt_sim"_L1},
};

const Place *placeOf(const QString &target)
{
    const auto *const found = std::ranges::find(kHouse, target, &Place::target);
    return found == std::end(kHouse) ? nullptr : found;
}

bool mayUse(const QString &user, const QString &used)
{
    const auto isThisPair = [&](const auto &pair) { return pair.first == user && pair.second == used; };
    if (user == used || std::ranges::any_of(kBeside, isThisPair))
        return true;
    const Place *const from = placeOf(user);
    const Place *const to = placeOf(used);
    return from && to && to->place <= from->reach;
}

bool mayShow(const QString &target)
{
    return mayUse(target, kWidgets);
}

/// The class headers that the widget module brings along, <QLabel> among them.
QSet<QString> widgetHeaders()
{
    const QDir folder(QLibraryInfo::path(QLibraryInfo::HeadersPath) + u"/QtWidgets"_s);
    const QStringList names = folder.entryList(QDir::Files);
    return {names.begin(), names.end()};
}

bool namesWidgets(const QString &header, const QSet<QString> &widgets)
{
    return header.startsWith(u"QtWidgets") || widgets.contains(header);
}

/// What would take a text for markup, and who alone may use it.
struct MarkupRule
{
    QLatin1StringView pattern;
    QLatin1StringView keeper;
};

constexpr MarkupRule kMarkup[] = {
    {R"(new QLabel\b|public QLabel\b|\bQLabel \w+[;({])"_L1, "widgets/plainlabel."_L1},
    {R"(new QMessageBox\b|public QMessageBox\b|QMessageBox::(information|warning|critical|question|about)\()"_L1,
     "widgets/plaintext."_L1},
    {R"(set\w*ToolTip\((?:\w+, )?+(?!(plain|tabular)ToolTip\())"_L1, ""_L1},
    {"QToolTip::showText"_L1, "widgets/plainlabel."_L1},
    {"new QInputDialog"_L1, "shell/windowboxes."_L1},
    {R"((set|insert|append)Html\(|QTextBrowser|QErrorMessage|[wW]hatsThis|Qt::(RichText|AutoText|MarkdownText))"_L1,
     ""_L1},
    {"setMarkdown"_L1, "report/pdffile."_L1}, // of the guides that come with the program
};

/// The parts of a source that break the rules for texts from elsewhere.
QStringList markupIn(const QString &file, const QString &source)
{
    QStringList found;
    for (const MarkupRule &rule : kMarkup) {
        const auto match = QRegularExpression(rule.pattern).match(source);
        if (match.hasMatch() && (rule.keeper.isEmpty() || !file.startsWith(rule.keeper)))
            found << match.captured();
    }
    if (source.contains("ToolTipRole"_L1) && !source.contains("ToolTip("_L1))
        found << u"ToolTipRole"_s;
    return found;
}

} // namespace

/// The rule of the house read from the sources: a layer looks only at what stands before it.
class TestTree : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_tree = readTree(QStringLiteral(PRELT_SOURCE_DIR "/src"));
        m_widgets = widgetHeaders();
        QVERIFY(m_tree.includes.size() > 20);
        QVERIFY(m_widgets.contains(u"QLabel"_s) && m_widgets.contains(u"qlabel.h"_s));
        QVERIFY(!m_widgets.contains(u"QString"_s));
    }

    void cleanup()
    {
        const QStringList faults = std::exchange(m_faults, {});
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }

    void rule()
    {
        QVERIFY(mayUse(u"prelt_power_forms"_s, u"prelt_power"_s));
        QVERIFY(!mayUse(u"prelt_power_forms"_s, u"prelt_chips_forms"_s)); // a sister
        QVERIFY(!mayUse(u"prelt_session"_s, u"prelt_kit"_s));             // to the right
        QVERIFY(mayUse(u"prelt"_s, u"prelt_sim"_s) && !mayUse(u"prelt_session"_s, u"prelt_sim"_s));
    }

    void cmakeListsAndIncludeLinesAreRead()
    {
        const QList<Target> targets = targetsIn(
            u"# prelt_layer(no)\nprelt_layer(a\n  SOURCES x.cpp y.h\n  LINKS b Qt6::Core)\nprelt_program(c SOURCES m.cpp)"_s,
            u"f"_s);
        QCOMPARE(targets.size(), 2);
        QCOMPARE(targets[0].sources, QStringList({u"x.cpp"_s, u"y.h"_s}));
        QCOMPARE(targets[0].links, QStringList({u"b"_s, u"Qt6::Core"_s}));
        QCOMPARE(targets[1].name, u"c"_s);
        QCOMPARE(headersNamedIn(u"#include \"a.h\"\n  # include <QLabel>\n// #include \"c.h\"\n"_s),
                 QStringList({u"a.h"_s, u"QLabel"_s}));
    }

    void everyTargetHasAPlace()
    {
        for (const Target &target : std::as_const(m_tree.targets)) {
            if (!placeOf(target.name))
                m_faults << target.name + u" has no place among the layers"_s;
        }
    }

    void everySourceIsBuilt()
    {
        for (const QString &file : std::as_const(m_tree.files)) {
            if (!m_tree.ownerOf.contains(file))
                m_faults << file + u" is built by no target"_s;
        }
    }

    void headerNamesAreUnique()
    {
        QHash<QString, QString> seen;
        for (const QString &file : m_tree.files.filter(QRegularExpression(u"\\.h$"_s))) {
            const QString name = QFileInfo(file).fileName();
            if (seen.contains(name))
                m_faults << file + u" is named like "_s + seen.value(name);
            seen.insert(name, file);
        }
    }

    void includesPointToTheLeft()
    {
        for (const Include &include : std::as_const(m_tree.includes)) {
            const QString used = m_tree.ownerOfHeader(include.header);
            if (!used.isEmpty() && !mayUse(include.target, used))
                m_faults << u"%1 of %2 includes %3 of %4"_s.arg(include.file, include.target, include.header, used);
        }
    }

    void linksPointToTheLeft()
    {
        for (const Target &target : std::as_const(m_tree.targets)) {
            for (const QString &link : target.links) {
                const bool allowed = link == u"Qt6::Widgets" ? mayShow(target.name)
                                                             : !link.startsWith(u"prelt") || mayUse(target.name, link);
                if (!allowed)
                    m_faults << u"%1 links %2"_s.arg(target.name, link);
            }
        }
    }

    void widgetsStayAboveTheirLayer()
    {
        for (const Include &include : std::as_const(m_tree.includes)) {
            if (!mayShow(include.target) && namesWidgets(include.header, m_widgets))
                m_faults << u"%1 of %2 includes <%3>"_s.arg(include.file, include.target, include.header);
        }
    }

    void markupIsFound()
    {
        QCOMPARE(markupIn(u"a.cpp"_s, u"auto *x = new QLabel(text);"_s), QStringList(u"new QLabel"_s));
        QCOMPARE(markupIn(u"a.cpp"_s, u"x->setToolTip(text);"_s), QStringList(u"setToolTip("_s));
        QCOMPARE(markupIn(u"a.cpp"_s, u"setTabToolTip(i, text);"_s), QStringList(u"setTabToolTip(i, "_s));
        QCOMPARE(markupIn(u"a.cpp"_s, u"setTabToolTip(i, plainToolTip(x)); const QLabel *y;"_s), QStringList());
    }

    void textsAreShownAsLetters()
    {
        for (const QString &file : std::as_const(m_tree.files)) {
            const QString source = contents(QStringLiteral(PRELT_SOURCE_DIR "/src/") + file);
            for (const QString &part : markupIn(file, source))
                m_faults << u"%1 may show markup: %2"_s.arg(file, part);
        }
    }

private:
    SourceTree m_tree;
    QSet<QString> m_widgets;
    QStringList m_faults; ///< of the running test, told all at once
};

QTEST_GUILESS_MAIN(TestTree)
#include "tst_tree.moc"
