// Help pages read into plain text with their styled ranges, and the help
// index and abbreviation look-ups.

#include "help/Abbreviations.h"
#include "help/HelpTopics.h"
#include "help/HtmlText.h"

#include <QtTest>

using help::HtmlText;

class tst_HtmlText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void render_data()
    {
        QTest::addColumn<QString>("html");
        QTest::addColumn<QString>("text");
        // Every non-empty list, as "name=entry;entry".
        QTest::addColumn<QStringList>("lists");

        const QString cr(QChar(13));
        QTest::newRow("nested bold and italic") << "<b>one<i>two</i></b>"
                                                << "onetwo" << QStringList{"bolds=0\t6", "italics=3\t6"};
        QTest::newRow("tags in any case") << "<B>a</b><BR>b"
                                          << "a" + cr + "b" << QStringList{"bolds=0\t1"};
        QTest::newRow("unclosed paragraph") << "<p>text" << cr + "text" << QStringList{};
        QTest::newRow("written-out brackets") << "a&lt;b&gt;c"
                                              << "a<b>c" << QStringList{};
        QTest::newRow("escaped ampersand before a bracket") << "x&amp;lt;y"
                                                            << "x<y" << QStringList{};
        QTest::newRow("image with source") << "<img src=\"pic.png\">"
                                           << "[IMAGE]" << QStringList{"links=0\t7\tpic.png"};
        QTest::newRow("image with alt") << "<img alt=photo>"
                                        << "[IMAGE: photo]" << QStringList{};
        QTest::newRow("list item keeps its indent")
            << "<li>first  second" << cr + "   \u2022 first second" << QStringList{};
        QTest::newRow("font sizes from the control's 12")
            << "<font size=+2>a</font><font size=-2>b</font><font size=9 face=Serif color=#FF0000>c</font>"
            << "abc" << QStringList{"fonts=2\t3\tSerif", "colors=2\t3\t#FF0000", "sizes=0\t1\t14;1\t2\t10;2\t3\t9"};
        QTest::newRow("headers and small") << "<h2>Title</h2><small>s</small>" << cr + "Title" + cr + "s"
                                           << QStringList{"headers=1\t7\t2", "sizes=7\t8\t10"};
        QTest::newRow("links and anchors") << "<a name=top>Top</a> <a href=\"A_02.html\">Teams</a>"
                                           << "Top Teams" << QStringList{"links=4\t9\tA_02.html", "anchors=0\ttop"};
        QTest::newRow("stray closing tag and unknown element") << "</b>x<span>y</span><q>z"
                                                               << "xyz" << QStringList{};
        QTest::newRow("title is cut out") << "<title>Help</title>body"
                                          << "body" << QStringList{};
        QTest::newRow("entities by exact name") << "&Agrave;&agrave;&AGRAVE;&copy;&szlig;&Yuml;"
                                                << "\u00C0\u00E0&AGRAVE;\u00A9\u00DF\u0178" << QStringList{};
        QTest::newRow("leading line feeds go") << "\n\nx"
                                               << "x" << QStringList{};
        QTest::newRow("same name nested: the outer closes at the inner tag") << "<b>a<b>b</b>c</b>"
                                                                             << "abc" << QStringList{"bolds=0\t2;1\t3"};
        QTest::newRow("unclosed bracket takes the rest") << "ab<b"
                                                         << "ab" << QStringList{};
    }

    void render()
    {
        QFETCH(QString, html);
        QFETCH(QString, text);
        QFETCH(QStringList, lists);
        HtmlText page;
        page.Render(html);
        QCOMPARE(page.text, text);
        const std::pair<const char *, const QStringList *> all[] = {
            {"bolds", &page.bolds}, {"italics", &page.italics}, {"headers", &page.headers},
            {"fonts", &page.fonts}, {"colors", &page.colors},   {"sizes", &page.sizes},
            {"links", &page.links}, {"anchors", &page.anchors},
        };
        QStringList got;
        for (const auto &[name, list] : all) {
            if (!list->isEmpty())
                got.append(QString::fromLatin1(name) + u'=' + list->join(u';'));
        }
        QCOMPARE(got, lists);
    }

    void bodyColoursAndTitle()
    {
        HtmlText page;
        page.Render(QStringLiteral("<title>T</title><body link=#00FF00 bgcolor=#102030>x</body>"));
        QCOMPARE(page.title, QStringLiteral("T"));
        QVERIFY(page.bodyMet);
        QCOMPARE(page.linkColor, QColor(0, 255, 0));
        QCOMPARE(page.background, QColor(0x10, 0x20, 0x30));
        QCOMPARE(page.textColor, QColor(Qt::black));

        page.Render(QStringLiteral("plain"));
        QVERIFY(!page.bodyMet);
        QVERIFY(page.title.isEmpty());
        QCOMPARE(page.linkColor, QColor(0, 0, 255));
        QCOMPARE(page.background, QColor(Qt::white));
        QCOMPARE(HtmlText::HexFromColor(QColor(1, 171, 255)), QStringLiteral("#01ABFF"));
    }

    void followingLinks()
    {
        HtmlText page;
        page.Render(QStringLiteral("<a name=end>E</a> <a href=\"#end\">go</a> <a href=A_03.html>x</a>"));
        QCOMPARE(page.linkAt(2).value(), QStringLiteral("#end"));
        QCOMPARE(page.linkAt(4).value(), QStringLiteral("#end")); // both ends count
        QCOMPARE(page.linkAt(6).value(), QStringLiteral("A_03.html"));
        QVERIFY(!page.linkAt(0));
        QCOMPARE(page.anchorPosition(QStringLiteral("#end")).value(), 0);
        QVERIFY(!page.anchorPosition(QStringLiteral("#nowhere")));
    }

    void abbreviations_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("meaning");
        QTest::newRow("pitching before batting") << "ip"
                                                 << "Innings Pitched";
        QTest::newRow("bb") << "BB"
                            << "Basses on Balls";
        QTest::newRow("cs") << "cs"
                            << "Caught Stealing";
        QTest::newRow("heading") << "batters"
                                 << "";
        QTest::newRow("exact only") << "S"
                                    << "Save";
        QTest::newRow("no prefix") << "Sl"
                                   << "-";
        QTest::newRow("nothing") << "xyz"
                                 << "-";
    }

    void abbreviations()
    {
        QFETCH(QString, typed);
        QFETCH(QString, meaning);
        QCOMPARE(help::abbreviationRows().size(), 74);
        const int row = help::findAbbreviation(typed);
        QCOMPARE(row < 0 ? QStringLiteral("-") : help::abbreviationRows().at(row).second, meaning);
    }

    void topics()
    {
        QCOMPARE(help::topicArray().size(), 17);
        QCOMPARE(help::getTopic(7), QStringLiteral("A_07.html"));
        QVERIFY(help::isHeading(12));
        QCOMPARE(help::indexRowText(13), QStringLiteral("   Preferences"));
        QCOMPARE(help::indexRowText(14), QStringLiteral("Additional Information:"));
        QVERIFY(help::getTopic(17).isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_HtmlText)
#include "tst_htmltext.moc"
