// What the check of translations complains about, and what it lets pass.

#include "translationcheck.h"

#include <QTest>

class TestTranslationCheck : public QObject
{
    Q_OBJECT

private slots:
    void complains_data();
    void complains();
    void sameAsEnglishIfAllowed();
};

void TestTranslationCheck::complains_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("translation");
    QTest::addColumn<QString>("complaint");
    const QString none;
    QTest::newRow("good") << "Read"
                          << "Leggi" << none;
    QTest::newRow("empty") << "Read"
                           << ""
                           << "empty";
    QTest::newRow("English") << "Read"
                             << "Read"
                             << "English";
    QTest::newRow("no letters") << "(0/60)"
                                << "(0/60)" << none;
    QTest::newRow("placeholder") << "On %1"
                                 << "Su %1" << none;
    QTest::newRow("lost placeholder") << "On %1"
                                      << "Su"
                                      << "other placeholders";
    QTest::newRow("other placeholder") << "On %1"
                                       << "Su %2"
                                       << "other placeholders";
    QTest::newRow("doubled placeholder") << "On %1"
                                         << "%1 su %1"
                                         << "other placeholders";
    QTest::newRow("placeholders in another order") << "%1 of %2"
                                                   << "Di %2, %1" << none;
    QTest::newRow("tags") << "<p>No <b>device</b>!<br></p>"
                          << "<p><b>Nessuno</b>!<br></p>" << none;
    QTest::newRow("lost tag") << "<p>No <b>device</b></p>"
                              << "<p>Nessuno</p>"
                              << "other tags";
    QTest::newRow("open tag") << "<p>No <b>device</b></p>"
                              << "<p>Il <b>non<b></p>"
                              << "other tags";
    QTest::newRow("line break") << "One.\nTwo."
                                << "Uno.\nDue." << none;
    QTest::newRow("lost line break") << "One.\nTwo."
                                     << "Uno. Due."
                                     << "other line breaks";
    QTest::newRow("key") << "&Read"
                         << "&Leggi" << none;
    QTest::newRow("lost key") << "&Read"
                              << "Leggi"
                              << "other keys";
    QTest::newRow("new key") << "Read"
                             << "&Leggi"
                             << "other keys";
    QTest::newRow("and sign left out") << "Start && Stop"
                                       << "Inizio e fine" << none;
    QTest::newRow("and sign halved") << "Start && Stop"
                                     << "Inizio & fine"
                                     << "other keys";
    QTest::newRow("entity") << "<p>A and B</p>"
                            << "<p>A &amp; b</p>" << none;
    QTest::newRow("blank at the end") << "Name: "
                                      << "Nome: " << none;
    QTest::newRow("lost blank at the end") << "Name: "
                                           << "Nome:"
                                           << "other blanks at the end";
    QTest::newRow("blank at the beginning") << " (none)"
                                            << "(nessuno)"
                                            << "other blanks at the beginning";
}

void TestTranslationCheck::complains()
{
    QFETCH(const QString, source);
    QFETCH(const QString, translation);
    QTEST(translationComplaint(source, translation), "complaint");
}

void TestTranslationCheck::sameAsEnglishIfAllowed()
{
    const QString start = QStringLiteral("Start  ");
    QCOMPARE(translationComplaint(start, start, {QStringLiteral("Start")}), QString());
    QCOMPARE(translationComplaint(start, start, {QStringLiteral("Stop")}), QStringLiteral("English"));
}

QTEST_APPLESS_MAIN(TestTranslationCheck)
#include "tst_translationcheck.moc"
